// SPDX-License-Identifier: MIT
// A square part of a picture that strokes are painted into, those that lie on top first: what they
// cover is not painted again, and a tile that is full needs no more of them. Strokes of one colour
// become one shape, so no seam shows between them.
#pragma once

#include "preview/stroke_shape.h"

namespace torvik {

// Pixels of 0xFFRRGGBB, row by row.
struct Canvas {
    std::uint32_t* pixels;
    std::ptrdiff_t rowLength;
    int width;
    int height;
};

class StrokeTile {
public:
    static constexpr int side = StrokeShape::side;

    // The part of the canvas that begins at that upper left corner and ends at the canvas' edges.
    StrokeTile(const Canvas& canvas, int left, int top);

    void paint(const ToolStroke& stroke, const ThinPatterns& thin);
    // Whether nothing below the strokes shows any more; asked for now and then.
    bool isFull();
    // White where there is no stroke; then the canvas' part is finished.
    void finish();

private:
    void merge();
    std::uint32_t* pixelRow(int y) const { return m_pixels + y * m_rowLength; }

    std::uint32_t* m_pixels; // colour times cover, and the cover, of the colours above
    std::ptrdiff_t m_rowLength;
    int m_left;
    int m_top;
    int m_width;
    int m_height;
    int m_fullRows = 0;
    bool m_isMerged = false;    // a colour stands in the pixels
    std::uint32_t m_colour = 0; // of the shape
    StrokeShape m_shape;
};

} // namespace torvik
