// SPDX-License-Identifier: MIT
#include "preview/outlines.h"

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

// Appends points from the arc's first to its last. `finest` is the radius that the chords must do
// justice to.
void appendArc(Points& points, ScreenPoint centre, double radius, double from, double sweep,
               double finest) {
    const double chord = 2 * std::acos(1 - std::min(chordTolerance / finest, 1.0));
    const double count = std::clamp(std::ceil(std::fabs(sweep) / chord), 1.0, mostChords);
    const double stepCos = std::cos(sweep / count);
    const double stepSin = std::sin(sweep / count);
    double x = radius * std::cos(from);
    double y = radius * std::sin(from);
    for (int i = 0; i <= static_cast<int>(count); ++i) {
        points.push_back({centre.x + x, centre.y + y});
        const double turned = x * stepCos - y * stepSin;
        y = x * stepSin + y * stepCos;
        x = turned;
    }
}

void appendArc(Points& points, const ScreenArc& arc) {
    appendArc(points, arc.centre, arc.radius, arc.from, arc.sweep, arc.radius);
}

// The groove of a straight cut: both ends are round, as the tool is.
void straightOutline(Points& outline, ScreenPoint a, ScreenPoint b, double toolRadius) {
    const double direction = std::atan2(b.y - a.y, b.x - a.x);
    outline.clear();
    appendArc(outline, b, toolRadius, direction - pi / 2, pi, toolRadius);
    appendArc(outline, a, toolRadius, direction + pi / 2, pi, toolRadius);
}

// The groove of an arc wider than the tool: out along the outer edge, back along the inner one.
void bentOutline(Points& outline, const ScreenArc& arc, double toolRadius) {
    const double outer = arc.radius + toolRadius;
    const double inner = arc.radius - toolRadius;
    const double to = arc.from + arc.sweep;
    const double turn = arc.sweep < 0 ? -pi : pi;
    const auto onArc = [&](double angle) {
        return ScreenPoint{arc.centre.x + arc.radius * std::cos(angle),
                           arc.centre.y + arc.radius * std::sin(angle)};
    };
    outline.clear();
    appendArc(outline, arc.centre, outer, arc.from, arc.sweep, outer);
    if (!arc.full)
        appendArc(outline, onArc(to), toolRadius, to, turn, toolRadius);
    appendArc(outline, arc.centre, inner, to, -arc.sweep, outer);
    if (!arc.full)
        appendArc(outline, onArc(arc.from), toolRadius, arc.from + pi, turn, toolRadius);
}

} // namespace

void appendLine(Points& points, const Path& path, const PictureView& view) {
    if (path.intType != straightLine)
        return appendArc(points, screenArc(path, view));
    points.push_back(view.point(path.sngStartX, path.sngStartY));
    points.push_back(view.point(path.sngEndX, path.sngEndY));
}

void discOutline(Points& outline, ScreenPoint centre, double radius) {
    outline.clear();
    appendArc(outline, centre, radius, 0, 2 * pi, radius);
}

void ringOutline(Points& outline, ScreenPoint centre, double radius, double width) {
    if (radius > width / 2)
        bentOutline(outline, {centre, radius, 0, 2 * pi, true}, width / 2);
    else
        discOutline(outline, centre, radius + width / 2);
}

void visitGroove(const Path& path, const PictureView& view, double width,
                 const std::function<void(const Points& outline)>& fill) {
    const double toolRadius = width / 2;
    Points outline;
    if (path.intType == straightLine) {
        straightOutline(outline, view.point(path.sngStartX, path.sngStartY),
                        view.point(path.sngEndX, path.sngEndY), toolRadius);
        return fill(outline);
    }
    const ScreenArc arc = screenArc(path, view);
    if (arc.full) {
        ringOutline(outline, arc.centre, arc.radius, width);
        return fill(outline);
    }
    if (arc.radius > toolRadius) {
        bentOutline(outline, arc, toolRadius);
        return fill(outline);
    }
    // The tool covers the arc's centre: only the chords' grooves together have the right shape.
    Points chords;
    appendArc(chords, arc);
    for (std::size_t i = 1; i < chords.size(); ++i) {
        straightOutline(outline, chords[i - 1], chords[i], toolRadius);
        fill(outline);
    }
}

} // namespace torvik
