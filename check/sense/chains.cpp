// SPDX-License-Identifier: MIT
#include "check/sense/chains.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace torvik::check {
namespace {

constexpr double gap = 0.1;         // mm; a narrower one holds no part
constexpr double smallest = 1;      // mm, of a part that can come loose
constexpr double chordTurn = 0.175; // radians; 10 degrees
constexpr double fullTurn = 2 * std::numbers::pi;

bool isNear(Point a, Point b) {
    return std::fabs(a.x - b.x) <= gap && std::fabs(a.y - b.y) <= gap;
}

Point startOf(const Path& path) {
    return {path.sngStartX, path.sngStartY};
}

Point endOf(const Path& path) {
    return {path.sngEndX, path.sngEndY};
}

// The corners of an arc but its last, as it is cut.
void addArc(std::vector<Point>& corners, const Path& arc) {
    const double turn = double{arc.sngAngleTo} - arc.sngAngleFrom;
    double sweep = turn < 0 ? turn + fullTurn : turn;
    if (isFullTurn(arc))
        sweep = fullTurn;
    const int chords = std::max(1, static_cast<int>(std::ceil(sweep / chordTurn)));
    const bool clockwise = arc.intType == arcClockwise;
    const double step = (clockwise ? -sweep : sweep) / chords;
    double x = double{arc.sngStartX} - arc.sngCentreX;
    double y = double{arc.sngStartY} - arc.sngCentreY;
    const double cosStep = std::cos(step);
    const double sinStep = std::sin(step);
    for (int i = 0; i < chords; ++i) {
        corners.push_back({arc.sngCentreX + x, arc.sngCentreY + y});
        const double turned = x * cosStep - y * sinStep;
        y = x * sinStep + y * cosStep;
        x = turned;
    }
}

} // namespace

std::vector<Chain> chainsOf(const Drawing& drawing, std::span<const std::int16_t> paths) {
    std::vector<Chain> chains;
    std::size_t first = 0;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        const Path& path = drawing.gudtPaths[paths[i]];
        const bool goesOn = i > first &&
                            isNear(endOf(drawing.gudtPaths[paths[i - 1]]), startOf(path)) &&
                            !chains.back().closed;
        if (!goesOn) {
            first = i;
            chains.push_back({{}, noExtents(), startOf(path), false});
        }
        Chain& chain = chains.back();
        chain.paths = paths.subspan(first, i - first + 1);
        includePath(chain.box, path);
        chain.closed = isNear(endOf(path), chain.start) && chain.box.width() > smallest &&
                       chain.box.height() > smallest;
    }
    return chains;
}

std::vector<Point> cornersOf(const Drawing& drawing, const Chain& chain) {
    std::vector<Point> corners;
    for (const std::int16_t subscript : chain.paths) {
        const Path& path = drawing.gudtPaths[subscript];
        if (path.intType == straightLine)
            corners.push_back(startOf(path));
        else
            addArc(corners, path);
    }
    return corners;
}

} // namespace torvik::check
