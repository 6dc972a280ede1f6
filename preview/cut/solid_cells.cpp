// SPDX-License-Identifier: MIT
#include "preview/cut/solid_cells.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace torvik {
namespace {

constexpr double unknownThickness = 2; // mm below the deepest cut
constexpr int shadowReach = 3;         // cells
constexpr float shadowDepth = 4;       // cells: so much deeper than its neighbours is darkest
constexpr float flat = 0.01F;          // a slope that no cut leaves
constexpr float darkest = 0.45F;
constexpr float depthShade = 0.3F; // how much darker the deepest floor is than the surface
constexpr int surfaceRed = 0xEE;
constexpr int surfaceGreen = 0xDF;
constexpr int surfaceBlue = 0xC2;

QRgb shaded(float light) {
    const auto part = [light](int colour) {
        return static_cast<int>(std::lround(static_cast<float>(colour) * light));
    };
    return qRgb(part(surfaceRed), part(surfaceGreen), part(surfaceBlue));
}

// The sums of windows of 2 * reach + 1 along a line of values, which end at its ends.
void sumWindows(const float* from, float* to, int count, std::ptrdiff_t step) {
    float sum = 0;
    for (int i = -shadowReach; i <= shadowReach; ++i)
        sum += from[std::clamp(i, 0, count - 1) * step];
    for (int i = 0; i < count; ++i) {
        to[i * step] = sum;
        sum += from[std::min(i + shadowReach + 1, count - 1) * step] -
               from[std::max(i - shadowReach, 0) * step];
    }
}

} // namespace

SolidCells::SolidCells(const sweep::Field& field, const CutBillet& billet) {
    double cell = 1;
    takeDepths(field, billet, cell);
    const std::vector<float> sums = windowSums();
    colourTops(sums);
    turnWalls(sums);
}

void SolidCells::takeDepths(const sweep::Field& field, const CutBillet& billet, double& cell) {
    const sweep::Grid& grid = field.grid;
    const auto edge = [&](double place, double low, int count) {
        return std::clamp(static_cast<int>(std::lround((place - low) / grid.cell)), 0, count);
    };
    const int firstColumn = edge(billet.lowX, grid.lowX, grid.columns);
    const int firstRow = edge(billet.lowY, grid.lowY, grid.rows);
    const int width = edge(billet.lowX + billet.length, grid.lowX, grid.columns) - firstColumn;
    const int height = edge(billet.lowY + billet.width, grid.lowY, grid.rows) - firstRow;
    const int group = std::max(1, (std::max(width, height) + most - 1) / most);
    cell = grid.cell * group;
    columns = std::max(1, width / group);
    rows = std::max(1, height / group);

    std::vector<std::uint16_t> depths(static_cast<std::size_t>(columns) *
                                      static_cast<std::size_t>(rows));
    std::uint16_t deepest = 0;
    for (int y = 0; y < std::min(rows * group, height); ++y) {
        const std::uint16_t* const line = &field.depths[field.at(firstColumn, firstRow + y)];
        std::uint16_t* const to =
            &depths[static_cast<std::size_t>(y / group) * static_cast<std::size_t>(columns)];
        for (int x = 0; x < std::min(columns * group, width); ++x) {
            to[x / group] = std::max(to[x / group], line[x]);
            deepest = std::max(deepest, line[x]);
        }
    }
    const double unit = 1 / (sweep::depthsPerMm * cell);
    thickness = static_cast<float>(billet.depth > 0 ? billet.depth / cell
                                                    : deepest * unit + unknownThickness / cell);
    heights.resize(depths.size());
    for (std::size_t i = 0; i < depths.size(); ++i)
        heights[i] = std::max(-thickness, -static_cast<float>(depths[i] * unit));
}

// Heights over a window round each cell, summed.
std::vector<float> SolidCells::windowSums() const {
    std::vector<float> across(heights.size());
    std::vector<float> sums(heights.size());
    for (int row = 0; row < rows; ++row) {
        const std::ptrdiff_t start = std::ptrdiff_t{row} * columns;
        sumWindows(heights.data() + start, across.data() + start, columns, 1);
    }
    for (int column = 0; column < columns; ++column)
        sumWindows(across.data() + column, sums.data() + column, rows, columns);
    return sums;
}

// Darker where it is deep, and at the foot of walls.
void SolidCells::colourTops(const std::vector<float>& sums) {
    constexpr float window = (2 * shadowReach + 1) * (2 * shadowReach + 1);
    tops.resize(heights.size());
    for (std::size_t i = 0; i < heights.size(); ++i) {
        const float below = std::clamp((sums[i] / window - heights[i]) / shadowDepth, 0.0F, 1.0F);
        const float deep = std::clamp(-heights[i] / thickness, 0.0F, 1.0F);
        tops[i] = shaded((1 - depthShade * deep) * (1 - darkest * below));
    }
}

// By the slope of what is smoothed, so that steps of cells look like the curve that they stand for.
void SolidCells::turnWalls(const std::vector<float>& sums) {
    const auto sumAt = [&](int column, int row) {
        return sums[static_cast<std::size_t>(std::clamp(row, 0, rows - 1)) *
                        static_cast<std::size_t>(columns) +
                    static_cast<std::size_t>(std::clamp(column, 0, columns - 1))];
    };
    walls.assign(heights.size(), 0);
    std::size_t cell = 0;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column, ++cell) {
            const float x = sumAt(column - shadowReach, row) - sumAt(column + shadowReach, row);
            const float y = sumAt(column, row - shadowReach) - sumAt(column, row + shadowReach);
            if (std::fabs(x) + std::fabs(y) < flat)
                continue;
            const float turn = std::atan2(y, x) / (2 * std::numbers::pi_v<float>);
            walls[cell] = static_cast<std::uint8_t>(std::lround(256 * turn) & 0xFF);
        }
    }
}

} // namespace torvik
