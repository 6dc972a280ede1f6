// SPDX-License-Identifier: MIT
#include "prepare/dxf/text_codes.h"

#include "base/text.h"
#include "job/characters.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace torvik::dxf {
namespace {

// The number of exactly so many digits at the start of the text.
std::optional<char32_t> numberAt(std::string_view text, std::size_t digits, int base) {
    if (text.size() < digits)
        return {};
    std::uint32_t number = 0;
    const char* const end = text.data() + digits;
    const auto read = std::from_chars(text.data(), end, number, base);
    if (read.ec != std::errc() || read.ptr != end)
        return {};
    return number;
}

// Reads both kinds of text; the formats only where there can be any.
class TextDecoder {
public:
    TextDecoder(std::string_view text, bool hasFormats) : m_rest(text), m_hasFormats(hasFormats) {}

    std::vector<std::string> decode() {
        while (!m_rest.empty())
            if (!takePercentCode() && !takeLetterNumber() && !(m_hasFormats && takeFormat()))
                takePlain();
        return std::move(m_lines);
    }

private:
    std::string& line() { return m_lines.back(); }

    void takePlain() {
        line() += m_rest.front();
        m_rest.remove_prefix(1);
    }

    bool takePercentCode() {
        if (!m_rest.starts_with("%%") || m_rest.size() < 3)
            return false;
        constexpr std::size_t decimals = 3;
        if (const auto number = numberAt(m_rest.substr(2), decimals, 10)) {
            appendLetter(line(), *number);
            m_rest.remove_prefix(2 + decimals);
            return true;
        }
        switch (toSmall(m_rest[2])) {
        case 'd':
            line() += "°";
            break;
        case 'p':
            line() += "±";
            break;
        case 'c':
            line() += "ø";
            break;
        case '%':
            line() += '%';
            break;
        case 'u':
        case 'o':
        case 'k':
            break;
        default:
            return false;
        }
        m_rest.remove_prefix(3);
        return true;
    }

    bool takeLetterNumber() {
        constexpr std::string_view mark = R"(\U+)";
        constexpr std::size_t digits = 4;
        if (!m_rest.starts_with(mark))
            return false;
        const auto number = numberAt(m_rest.substr(mark.size()), digits, 16);
        if (!number)
            return false;
        appendLetter(line(), *number);
        m_rest.remove_prefix(mark.size() + digits);
        return true;
    }

    bool takeFormat() {
        const char first = m_rest.front();
        if (first == '{' || first == '}') {
            m_rest.remove_prefix(1);
            return true;
        }
        if (first == '^' && m_rest.size() > 1) {
            takeCaret();
            return true;
        }
        if (first != '\\' || m_rest.size() < 2)
            return false;
        const char code = m_rest[1];
        m_rest.remove_prefix(2);
        takeBackslashCode(code);
        return true;
    }

    // Control characters: "^J" breaks the line, "^I" is a tab.
    void takeCaret() {
        const char code = m_rest[1];
        m_rest.remove_prefix(2);
        if (code == 'J')
            m_lines.emplace_back();
        else if (code == 'I' || code == ' ')
            line() += code == 'I' ? ' ' : '^';
    }

    void takeBackslashCode(char code) {
        switch (code) {
        case 'P':
        case 'N':
        case 'X':
            m_lines.emplace_back();
            break;
        case '~':
            line() += ' ';
            break;
        case '\\':
        case '{':
        case '}':
            line() += code;
            break;
        case 'S':
            takeFraction();
            break;
        default:
            // Switches take no value: lines under, over and through letters.
            if (std::string_view("LlOoKk").find(code) == std::string_view::npos)
                takeValue();
        }
    }

    std::string_view takeValue() {
        const std::size_t end = std::min(m_rest.find(';'), m_rest.size());
        const std::string_view value = m_rest.substr(0, end);
        m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
        return value;
    }

    // One number over another is written beside it.
    void takeFraction() {
        for (const char c : takeValue())
            if (c == '^' || c == '#')
                line() += '/';
            else if (c != '\\')
                line() += c;
    }

    std::string_view m_rest;
    bool m_hasFormats;
    std::vector<std::string> m_lines{1};
};

} // namespace

std::string plainText(std::string_view utf8) {
    return TextDecoder(utf8, false).decode().front();
}

std::vector<std::string> plainLines(std::string_view utf8) {
    return TextDecoder(utf8, true).decode();
}

} // namespace torvik::dxf
