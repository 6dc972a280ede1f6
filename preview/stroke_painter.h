// SPDX-License-Identifier: MIT
// Paints what a round tool of a given width leaves, in one colour after the other, what lies on
// top first. Widths and radii are image pixels. Quick enough for tens of thousands of grooves in a
// frame: tiles are painted side by side in threads, and none that is full is painted again.
#pragma once

#include "preview/path_points.h"
#include "preview/stroke_tile.h"

#include <stop_token>
#include <vector>

namespace torvik {

class StrokePainter {
public:
    // The canvas gets its pixels by finish(), unless it is stopped. Lines of the thin width are
    // painted quickest. The number of threads changes nothing but the time.
    StrokePainter(const Canvas& canvas, double thinWidth, std::stop_token stop = {},
                  int threads = 2);

    void setColour(std::int32_t colour); // 0x00BBGGRR
    // A line through the points with round ends.
    void line(const Points& points, double width);
    void disc(ScreenPoint centre, double radius);
    void finish();

private:
    void add(ScreenPoint from, ScreenPoint to, double radius, double longer);
    void paintStrokes();
    void putIntoTiles(std::uint32_t number);
    std::size_t tile(int column, int row) const;

    std::stop_token m_stop;
    int m_threads;
    int m_columns; // of tiles
    int m_rows;
    ThinPatterns m_thin;
    std::uint32_t m_colour = 0;
    std::vector<StrokeTile> m_tiles;
    std::vector<bool> m_isFull;
    std::vector<ToolStroke> m_strokes;                     // not painted yet
    std::vector<std::vector<std::uint32_t>> m_tileStrokes; // those that touch each tile
};

} // namespace torvik
