// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <algorithm>
#include <cstdint>

namespace torvik {
namespace {

struct CodePoint {
    std::uint32_t value;
    std::size_t length;
};

constexpr std::uint32_t outside = 0xFFFD;

// The code point at the start of a text that is not empty. A broken sequence counts one byte.
CodePoint firstCodePoint(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return {outside, 1};
    std::uint32_t value = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0u) != 0x80)
            return {outside, 1};
        value = value << 6 | (next & 0x3Fu);
    }
    // A value that fewer bytes would hold is no letter: it could hide a line break.
    if (value < (length == 4 ? 0x10000u : length == 3 ? 0x800u : 0x80u))
        return {outside, 1};
    return {value, length};
}

} // namespace

std::string_view trimBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string lowered(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), toSmall);
    return result;
}

char32_t takeLetter(std::string_view& utf8) {
    const CodePoint point = firstCodePoint(utf8);
    utf8.remove_prefix(point.length);
    return point.value;
}

bool isControlLetter(char32_t letter) {
    return letter < 0x20 || (letter >= 0x7F && letter < 0xA0);
}

void appendLetter(std::string& utf8, char32_t letter) {
    const auto put = [&](char32_t bits) { utf8 += static_cast<char>(bits); };
    const auto putRest = [&](int shift) { put(0x80u | (letter >> shift & 0x3Fu)); };
    if (letter < 0x80) {
        put(letter);
    } else if (letter < 0x800) {
        put(0xC0u | letter >> 6);
        putRest(0);
    } else if (letter < 0x10000) {
        put(0xE0u | letter >> 12);
        putRest(6);
        putRest(0);
    } else {
        put(0xF0u | (letter >> 18 & 0x07u));
        putRest(12);
        putRest(6);
        putRest(0);
    }
}

std::string latin1Line(std::string_view utf8) {
    std::string line;
    line.reserve(utf8.size());
    while (!utf8.empty()) {
        CodePoint point = firstCodePoint(utf8);
        if (utf8.substr(0, 2) == "\r\n")
            point.length = 2; // one line break, one blank
        utf8.remove_prefix(point.length);
        if (isControlLetter(point.value))
            line += ' ';
        else
            line += point.value < 0x100 ? static_cast<char>(point.value) : '?';
    }
    return line;
}

std::string lettersOutsideLatin1(std::string_view utf8) {
    std::string letters;
    while (!utf8.empty()) {
        const CodePoint point = firstCodePoint(utf8);
        const std::string_view letter =
            point.value == outside ? "\xEF\xBF\xBD" : utf8.substr(0, point.length);
        if (point.value > 0xFF && letters.find(letter) == std::string::npos)
            letters.append(letters.empty() ? "" : " ").append(letter);
        utf8.remove_prefix(point.length);
    }
    return letters;
}

std::string_view fileNameOf(std::string_view path) {
    auto separator = path.find_last_of("\\/");
    if (separator == std::string_view::npos)
        separator = path.rfind(':');
    return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

std::string replaceLastThree(std::string_view name, std::string_view replacement) {
    for (int i = 0; i < 3 && !name.empty(); ++i) {
        const auto isContinuation = [&] {
            return (static_cast<unsigned char>(name.back()) & 0xC0u) == 0x80;
        };
        while (name.size() > 1 && isContinuation())
            name.remove_suffix(1);
        name.remove_suffix(1);
    }
    return std::string(name) + std::string(replacement);
}

} // namespace torvik
