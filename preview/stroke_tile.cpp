// SPDX-License-Identifier: MIT
#include "preview/stroke_tile.h"

#include <algorithm>

namespace torvik {
namespace {

// Each channel times part / 255, two at once.
std::uint32_t times(std::uint32_t colour, std::uint32_t part) {
    constexpr std::uint32_t two = 0x00FF00FF;
    const auto divided = [](std::uint32_t pair) {
        pair += 0x00800080;
        return (pair + (pair >> 8 & two)) >> 8 & two;
    };
    return divided((colour & two) * part) | divided((colour >> 8 & two) * part) << 8;
}

} // namespace

StrokeTile::StrokeTile(const Canvas& canvas, int left, int top)
    : m_pixels(canvas.pixels + top * canvas.rowLength + left), m_rowLength(canvas.rowLength),
      m_left(left), m_top(top), m_width(std::min(side, canvas.width - left)),
      m_height(std::min(side, canvas.height - top)) {}

void StrokeTile::paint(const ToolStroke& stroke, const ThinPatterns& thin) {
    if (stroke.colour != m_colour) {
        merge();
        m_colour = stroke.colour;
    }
    m_shape.add(stroke.movedBy(static_cast<float>(-m_left), static_cast<float>(-m_top)), thin);
}

bool StrokeTile::isFull() {
    for (; m_fullRows < m_height; ++m_fullRows) {
        const std::uint32_t* const pixels = pixelRow(m_fullRows);
        for (int x = 0; x < m_width; ++x)
            if (!m_shape.isCovered(x, m_fullRows) && (!m_isMerged || pixels[x] >> 24 != 0xFF))
                return false;
    }
    return true;
}

// Lays the shape below the colours that stand in the pixels.
void StrokeTile::merge() {
    if (m_colour == 0)
        return;
    m_shape.makeReady();
    for (int y = 0; y < m_height; ++y) {
        const std::uint8_t* const cover = m_shape.row(y);
        std::uint32_t* const pixels = pixelRow(y);
        if (!m_isMerged)
            std::fill_n(pixels, m_width, 0);
        for (int x = 0; x < m_width; ++x) {
            if (StrokeShape::isEmpty(cover + x)) {
                x += StrokeShape::group - 1;
                continue;
            }
            const std::uint32_t room = 0xFF - (pixels[x] >> 24);
            pixels[x] += times(m_colour, (cover[x] * room + 127) / 255);
        }
    }
    m_isMerged = true;
    m_shape.clear();
}

void StrokeTile::finish() {
    merge();
    for (int y = 0; y < m_height; ++y) {
        std::uint32_t* const pixels = pixelRow(y);
        if (!m_isMerged)
            std::fill_n(pixels, m_width, 0xFFFFFFFF);
        else
            for (int x = 0; x < m_width; ++x)
                pixels[x] = (pixels[x] + (0xFF - (pixels[x] >> 24)) * 0x010101) | 0xFF000000;
    }
}

} // namespace torvik
