// SPDX-License-Identifier: MIT
// Small reading of the texts that attributes and style sheets hold: blanks, words, numbers. Nothing
// depends on the locale; capitals and small letters are those of ASCII.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace torvik::svg {

inline bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

std::string_view trimmed(std::string_view text);
// Whether the text is the word, which stands in small letters, in any letters.
bool isWord(std::string_view text, std::string_view word);

class TextReader {
public:
    explicit TextReader(std::string_view text) : m_text(text) {}

    bool atEnd() const { return m_at >= m_text.size(); }
    char peek() const { return atEnd() ? '\0' : m_text[m_at]; }
    std::string_view rest() const { return m_text.substr(m_at); }
    void skip(std::size_t count) { m_at += count; }

    void skipBlanks();
    // Blanks with at most one comma among them.
    void skipSeparator();
    // The character, if it stands next.
    bool take(char c);
    std::string_view takeLetters();
    // Letters, digits, "-", "_", what is no ASCII, and characters behind a backslash.
    std::string_view takeName();
    // All up to the character, which is passed over; the rest where it does not come. Quotes and
    // brackets within are passed over whole.
    std::string_view takeUntil(char c);
    // With its sign, fraction and exponent. Raises Overflow where it fits no double.
    std::optional<double> takeNumber();

private:
    std::string_view m_text;
    std::size_t m_at = 0;
};

} // namespace torvik::svg
