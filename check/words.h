// SPDX-License-Identifier: MIT
// A statement's text cut into its words: a capital letter and what stands behind it.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace torvik::check {

struct Word {
    std::string_view text; // up to the next blank or capital letter

    char letter() const { return text[0]; }
    std::string_view number() const { return text.substr(1); }
};

class Words {
public:
    static constexpr std::size_t most = 8;

    // Reads leniently: blanks may be many or missing. isClean() says whether they were as they
    // should be: one between two words, no word too many, nothing that is no word.
    explicit Words(std::string_view text);

    std::span<const Word> words() const { return {m_words.data(), m_count}; }
    bool isClean() const { return m_clean; }

private:
    std::array<Word, most> m_words{};
    std::size_t m_count = 0;
    bool m_clean = true;
};

struct WrittenNumber {
    double value; // NaN where it cannot be read, or is above a million
    bool isClean; // a sign at most for what is below 0, no leading zero, as many decimals as asked
};

// Takes a number that is written as it should be, as nearly all are, off the text's front. NaN, and
// nothing taken, where none stands there. What follows may be more digits.
double takeCleanNumber(std::string_view& text, int decimals);

// Reads a written number that should have `decimals` decimals (0 to 3).
WrittenNumber readNumber(std::string_view text, int decimals);

} // namespace torvik::check
