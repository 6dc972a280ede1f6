// SPDX-License-Identifier: MIT
#include "sweep/grid.h"

#include <algorithm>

namespace torvik::sweep {

void Area::cover(const Area& other) {
    lowX = std::min(lowX, other.lowX);
    lowY = std::min(lowY, other.lowY);
    highX = std::max(highX, other.highX);
    highY = std::max(highY, other.highY);
}

Grid gridOver(const Area& area, int cells) {
    const double side = std::min(std::max(area.width(), area.height()), longestSide);
    Grid grid;
    grid.lowX = area.lowX;
    grid.lowY = area.lowY;
    grid.cell = std::max(side / cells, finestCell);
    const auto count = [&](double length) {
        // A whole number of cells stays one, whatever the last bit says.
        return std::clamp(static_cast<int>(std::ceil(length / grid.cell - 1e-6)), 1, cells);
    };
    grid.columns = count(std::min(area.width(), longestSide));
    grid.rows = count(std::min(area.height(), longestSide));
    return grid;
}

} // namespace torvik::sweep
