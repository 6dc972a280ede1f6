// SPDX-License-Identifier: MIT
#include "prepare/placing/place.h"

#include "base/errors.h"
#include "job/records.h"
#include "prepare/arcs.h"
#include "prepare/fitting/grid.h"
#include "prepare/source/stroke_recorder.h"

#include <set>
#include <string>

namespace torvik {
namespace {

template <typename Move>
void movePoints(std::vector<Stroke>& strokes, Move&& move) {
    for (Stroke& stroke : strokes) {
        stroke.start = move(stroke.start);
        for (Segment& segment : stroke.segments) {
            segment.end = move(segment.end);
            segment.first = move(segment.first);
            segment.second = move(segment.second);
        }
    }
}

void turnSweeps(std::vector<Stroke>& strokes) {
    for (Stroke& stroke : strokes)
        for (Segment& segment : stroke.segments)
            segment.sweep = -segment.sweep;
}

Point lowCorner(const std::vector<Stroke>& strokes) {
    const StrokeExtents extents = extentsOf(strokes);
    return extents.empty() ? Point{} : extents.low;
}

void bringCornerTo(std::vector<Stroke>& strokes, Point corner) {
    const Point shift = corner - lowCorner(strokes);
    if (shift != Point{})
        movePoints(strokes, [&](Point p) { return p + shift; });
}

// Nothing would be left of such a circle when it is written.
bool isPoint(const Stroke& stroke) {
    return stroke.isDot() ||
           (stroke.isCircle() && toGrid(distance(stroke.segments[0].first, stroke.start)) == 0);
}

} // namespace

void place(std::vector<Stroke>& strokes, const Placement& placement) {
    if (placement.scale != 1)
        movePoints(strokes, [&](Point p) { return p * placement.scale; });
    const Point corner = placement.origin.value_or(lowCorner(strokes));
    if (placement.mirror != Mirror::none) {
        const bool leftRight = placement.mirror == Mirror::leftRight;
        movePoints(strokes, [&](Point p) {
            return leftRight ? Point{-p.x, p.y} : Point{p.x, -p.y};
        });
        turnSweeps(strokes);
    }
    if (placement.rotation != 0)
        movePoints(strokes, [&](Point p) { return rotated(p, placement.rotation); });
    if (placement.mirror != Mirror::none || placement.rotation != 0 || placement.origin)
        bringCornerTo(strokes, corner);
    if (const StrokeExtents extents = extentsOf(strokes); !extents.empty()) {
        requireOnPaper(extents.low);
        requireOnPaper(extents.high);
    }
}

void mapPens(std::vector<Stroke>& strokes, const std::map<int, int>& pens) {
    std::set<int> tooHigh;
    for (Stroke& stroke : strokes) {
        if (const auto mapped = pens.find(stroke.pen); mapped != pens.end())
            stroke.pen = mapped->second;
        if (stroke.pen > penCount)
            tooHigh.insert(stroke.pen);
    }
    if (tooHigh.empty())
        return;
    std::string list;
    for (const int pen : tooHigh)
        list += (list.empty() ? "" : ", ") + std::to_string(pen);
    throw RunTimeError("the drawing uses pens above 8 (" + list + "); say which pen to take for " +
                       (tooHigh.size() == 1 ? "it" : "each") + ", as in --pen " +
                       std::to_string(*tooHigh.begin()) + "=1");
}

long replaceDots(std::vector<Stroke>& strokes, std::optional<double> diameter) {
    long count = 0;
    for (Stroke& stroke : strokes) {
        if (!isPoint(stroke))
            continue;
        ++count;
        if (diameter)
            stroke = circleStroke(stroke.pen, stroke.start, *diameter / 2);
    }
    std::erase_if(strokes, isPoint);
    return count;
}

} // namespace torvik
