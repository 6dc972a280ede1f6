// SPDX-License-Identifier: MIT
// A grid of square cells over the piece. mm; row 0 lies at the lowest Y.
#pragma once

#include <cmath>

namespace torvik::sweep {

struct Area {
    double lowX = 0;
    double lowY = 0;
    double highX = 0;
    double highY = 0;

    void cover(const Area& other);
    double width() const { return highX - lowX; }
    double height() const { return highY - lowY; }
};

struct Grid {
    double lowX = 0; // the outer corner of the first cell
    double lowY = 0;
    double cell = 1;
    int columns = 0;
    int rows = 0;

    double centreY(int row) const { return lowY + (row + 0.5) * cell; }
    // Which column or row a place lies in; it may lie outside the grid.
    int columnAt(double x) const { return static_cast<int>(std::floor((x - lowX) / cell)); }
    int rowAt(double y) const { return static_cast<int>(std::floor((y - lowY) / cell)); }
    bool holds(int column, int row) const {
        return column >= 0 && row >= 0 && column < columns && row < rows;
    }
};

inline constexpr int mostCells = 1024;       // a side
inline constexpr double finestCell = 0.02;   // mm
inline constexpr double longestSide = 10000; // mm; what lies farther out is left out

// The grid with so many cells along the longer side, or with fewer of the finest.
Grid gridOver(const Area& area, int cells = mostCells);

} // namespace torvik::sweep
