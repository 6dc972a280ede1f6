// SPDX-License-Identifier: MIT
#include "preview/path_points.h"

#include "job/extents.h"
#include "job/records.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace torvik {
namespace {

constexpr double pi = std::numbers::pi;
constexpr double chordTolerance = 0.1; // image pixels
constexpr double mostChords = 4096;

// An arc on the screen. Angles are those of the screen, where Y runs down.
struct ScreenArc {
    ScreenPoint centre;
    double radius;
    double from;
    double sweep;
    bool full;
};

ScreenArc screenArc(const Path& path, const PictureView& view) {
    ScreenArc arc{view.point(path.sngCentreX, path.sngCentreY), view.length(path.sngRadius),
                  -double{path.sngAngleFrom}, -2 * pi, isFullTurn(path)};
    if (!arc.full) {
        const double turn = double{path.sngAngleTo} - path.sngAngleFrom;
        arc.sweep = -(turn < 0 ? turn + 2 * pi : turn);
    }
    if (path.intType == arcClockwise) {
        arc.from += arc.sweep;
        arc.sweep = -arc.sweep;
    }
    return arc;
}

// Appends points from the arc's first to its last.
void appendArc(Points& points, const ScreenArc& arc, Chords chords) {
    const double outside = chords == Chords::across ? std::min(chordTolerance, arc.radius) : 0;
    const double deep = (chordTolerance + outside) / arc.radius; // the middle of a chord
    const double chord = 2 * std::acos(1 - std::min(deep, 1.0));
    const double count = std::clamp(std::ceil(std::fabs(arc.sweep) / chord), 1.0, mostChords);
    const double stepCos = std::cos(arc.sweep / count);
    const double stepSin = std::sin(arc.sweep / count);
    double x = std::cos(arc.from);
    double y = std::sin(arc.from);
    for (int i = 0; i <= static_cast<int>(count); ++i) {
        const bool isEnd = !arc.full && (i == 0 || i == static_cast<int>(count));
        const double radius = isEnd ? arc.radius : arc.radius + outside;
        points.push_back({arc.centre.x + radius * x, arc.centre.y + radius * y});
        const double turned = x * stepCos - y * stepSin;
        y = x * stepSin + y * stepCos;
        x = turned;
    }
}

} // namespace

void appendLine(Points& points, const Path& path, const PictureView& view, Chords chords) {
    if (path.intType != straightLine)
        return appendArc(points, screenArc(path, view), chords);
    points.push_back(view.point(path.sngStartX, path.sngStartY));
    points.push_back(view.point(path.sngEndX, path.sngEndY));
}

void appendCircle(Points& points, ScreenPoint centre, double radius) {
    appendArc(points, {centre, radius, 0, 2 * pi, true}, Chords::within);
}

} // namespace torvik
