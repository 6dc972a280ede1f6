// SPDX-License-Identifier: MIT
// The shape that strokes make together in a square of pixels: how much of each pixel they cover.
#pragma once

#include "preview/stroke.h"
#include "preview/thin_patterns.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace torvik {

class StrokeShape {
public:
    static constexpr int side = 128;

    // The stroke is measured from the square's corner.
    void add(const ToolStroke& stroke, const ThinPatterns& thin);
    void clear();
    // Cover of 0 to 255, after makeReady().
    const std::uint8_t* row(int y) const { return rowOf(m_cover, y); }
    void makeReady();
    // Whether nothing of that many pixels in a row is covered.
    static constexpr int group = 8;
    static bool isEmpty(const std::uint8_t* cover) {
        std::uint64_t word = 0;
        std::memcpy(&word, cover, sizeof(word));
        return word == 0;
    }
    bool isCovered(int x, int y) const {
        return row(y)[x] == 0xFF || rowOf(m_turned, x)[y] == 0xFF;
    }

private:
    struct Strip;

    static constexpr int margin = 8; // room beside each row
    static constexpr int rowLength = side + 2 * margin;
    using Cover = std::array<std::uint8_t, std::size_t{rowLength} * side>;
    static const std::uint8_t* rowOf(const Cover& cover, int y) {
        return cover.data() + y * rowLength + margin;
    }
    static std::uint8_t* rowOf(Cover& cover, int y) {
        return cover.data() + y * rowLength + margin;
    }

    void addStrip(const ToolStroke& stroke);
    void addStripRow(std::uint8_t* row, const Strip& strip, int y);
    void addDisc(const ToolStroke& stroke);
    void addThinStrip(const ToolStroke& stroke, const ThinPatterns& thin);
    void addThinDisc(const ToolStroke& stroke, const ThinPatterns& thin);

    Cover m_cover{};
    Cover m_turned{}; // more of it, X and Y exchanged: the thin strips that are rather level
    bool m_hasTurned = false;
};

} // namespace torvik
