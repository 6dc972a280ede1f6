// SPDX-License-Identifier: MIT
#include "gcode/block_lines.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <utility>

namespace torvik {
namespace {

using FourDigits = std::array<char, 4>;

// The characters as one number, so that the last digit counts up by one addition.
std::uint32_t asWord(const FourDigits& digits) {
    return std::bit_cast<std::uint32_t>(digits);
}

FourDigits digitsOf(int number) {
    FourDigits digits;
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, number /= 10)
        *digit = static_cast<char>('0' + number % 10);
    return digits;
}

} // namespace

void BlockLines::reserve(std::size_t lines, std::size_t bytesOfLine) {
    m_starts.reserve(m_starts.size() + lines);
    m_text.reserve(m_text.size() + lines * (room.size() + bytesOfLine));
}

void BlockLines::append(std::string_view line) {
    m_text.append(room).append(line);
    m_starts.push_back(static_cast<std::uint32_t>(m_text.size()));
}

void BlockLines::changeEnds(std::string_view former, std::string_view end) {
    const BlockLines old = std::exchange(*this, {});
    const std::size_t lines = old.m_starts.size() - 1;
    reserve(lines, old.m_text.size() / std::max<std::size_t>(lines, 1) + end.size());
    for (std::uint32_t place = 0; place < lines; ++place) {
        append(old.line(place));
        m_text.replace(m_text.size() - former.size(), former.size(), end);
        m_starts.back() = static_cast<std::uint32_t>(m_text.size());
    }
}

std::string_view BlockLines::blocks(std::uint32_t first, std::uint32_t end, std::int16_t number) {
    constexpr int ten = 10;
    static const std::uint32_t one = asWord({0, 0, 0, 1});
    int next = number;
    for (std::uint32_t place = first; place < end;) {
        const auto untilZero = static_cast<std::uint32_t>(ten - next % ten);
        const std::uint32_t stop = std::min(end, place + untilZero);
        std::uint32_t digits = asWord(digitsOf(next));
        next += static_cast<int>(stop - place);
        for (; place < stop; ++place, digits += one)
            std::memcpy(m_text.data() + m_starts[place] + 1, &digits, sizeof digits);
    }
    return text(first, end);
}

} // namespace torvik
