// SPDX-License-Identifier: MIT
#include "prepare/svg/text_reader.h"

#include "base/numbers.h"
#include "base/text.h"
#include "job/characters.h"

#include <algorithm>
#include <charconv>

namespace torvik::svg {
namespace {

bool isNamed(char c) {
    return isLetter(c) || isDigit(c) || c == '-' || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

} // namespace

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

bool isWord(std::string_view text, std::string_view word) {
    return std::equal(text.begin(), text.end(), word.begin(), word.end(),
                      [](char a, char b) { return toSmall(a) == b; });
}

void TextReader::skipBlanks() {
    while (!atEnd() && isBlank(m_text[m_at]))
        ++m_at;
}

void TextReader::skipSeparator() {
    skipBlanks();
    if (take(','))
        skipBlanks();
}

bool TextReader::take(char c) {
    if (atEnd() || m_text[m_at] != c)
        return false;
    ++m_at;
    return true;
}

std::string_view TextReader::takeLetters() {
    const std::size_t start = m_at;
    while (!atEnd() && isLetter(m_text[m_at]))
        ++m_at;
    return m_text.substr(start, m_at - start);
}

std::string_view TextReader::takeName() {
    const std::size_t start = m_at;
    while (!atEnd() && (isNamed(m_text[m_at]) || m_text[m_at] == '\\'))
        m_at += m_text[m_at] == '\\' ? 2 : 1;
    m_at = std::min(m_at, m_text.size());
    return m_text.substr(start, m_at - start);
}

std::string_view TextReader::takeUntil(char c) {
    const std::size_t start = m_at;
    char quote = '\0';
    int depth = 0;
    for (; !atEnd(); ++m_at) {
        const char next = m_text[m_at];
        if (quote != '\0') {
            if (next == quote)
                quote = '\0';
        } else if (depth == 0 && next == c) {
            return m_text.substr(start, m_at++ - start);
        } else if (next == '"' || next == '\'') {
            quote = next;
        } else if (next == '(') {
            ++depth;
        } else if (next == ')' && depth > 0) {
            --depth;
        }
    }
    return m_text.substr(start);
}

std::optional<double> TextReader::takeNumber() {
    const char* at = m_text.data() + m_at;
    const char* const end = m_text.data() + m_text.size();
    const bool isSigned = at != end && (*at == '+' || *at == '-');
    const char* const digits = at + (isSigned ? 1 : 0);
    if (digits >= end || !(isDigit(*digits) || *digits == '.'))
        return {};
    double number = 0;
    const auto [last, error] = std::from_chars(digits, end, number);
    if (error == std::errc::invalid_argument)
        return {};
    if (error == std::errc::result_out_of_range)
        number = leadingNumber({digits, static_cast<std::size_t>(last - digits)});
    if (isSigned && *at == '-')
        number = -number;
    m_at = static_cast<std::size_t>(last - m_text.data());
    return number;
}

} // namespace torvik::svg
