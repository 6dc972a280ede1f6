// SPDX-License-Identifier: MIT
// What a line of up to three pixels covers of the eight pixels about its middle in one row,
// reckoned once for all lines of that width. Lengths are pixels.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace torvik {

class ThinPatterns {
public:
    static constexpr int pixels = 8;
    static constexpr int before = 3; // of them lie before the pixel that the line's middle is in
    static constexpr int discRows = 6;
    static constexpr int rowsAbove = 2;  // of them lie above the row that the disc's middle is in
    static constexpr int places = 32;    // in a pixel, of a line's middle
    static constexpr int discPlaces = 8; // each way, of a disc's middle
    static constexpr float widest = 1.5F;

    using Row = std::array<std::uint8_t, pixels>; // 0 to 255

    explicit ThinPatterns(float radius);

    float radius() const { return m_radius; }
    bool suits(float radius) const { return radius == m_radius && radius <= widest; }

    // Of a line that goes `slope` pixels aside in a row, from 0 to 1; a pattern for each place.
    const std::array<Row, places>& line(float slope) const {
        constexpr float middle = 0.5F;
        return m_lines[static_cast<std::size_t>(slope * (slopes - 1) + middle)];
    }
    const std::array<Row, discRows>& disc(int placeX, int placeY) const {
        return m_discs[static_cast<std::size_t>(placeY) * discPlaces +
                       static_cast<std::size_t>(placeX)];
    }

private:
    static constexpr int slopes = 16;

    float m_radius;
    std::array<std::array<Row, places>, slopes> m_lines;
    std::array<std::array<Row, discRows>, std::size_t{discPlaces} * discPlaces> m_discs;
};

} // namespace torvik
