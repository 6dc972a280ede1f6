// SPDX-License-Identifier: MIT
// Lines that are written again and again as blocks, each time with other numbers: they stand one
// behind the other with room for a number of four digits before each, so that most of a program
// can be passed on from here once its numbers are put in their places.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace torvik {

class BlockLines {
public:
    void reserve(std::size_t lines, std::size_t bytesOfLine);
    // A line with its end.
    void append(std::string_view line);
    // Puts another end, which all lines have, in the place of the former one.
    void changeEnds(std::string_view former, std::string_view end);

    // How the line stands in a program without its number.
    std::string_view line(std::uint32_t place) const {
        return text(place, place + 1).substr(room.size());
    }
    // The lines from `first` up to `end` as blocks with the numbers from `number` on, which all
    // have four digits. Valid until the next call.
    std::string_view blocks(std::uint32_t first, std::uint32_t end, std::int16_t number);

private:
    static constexpr std::string_view room = "N0000 ";

    std::string_view text(std::uint32_t first, std::uint32_t end) const {
        return std::string_view(m_text).substr(m_starts[first], m_starts[end] - m_starts[first]);
    }

    std::vector<std::uint32_t> m_starts{0}; // of each block in the text, and where the last ends
    std::string m_text;
};

} // namespace torvik
