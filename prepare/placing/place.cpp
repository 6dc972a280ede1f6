// SPDX-License-Identifier: MIT
#include "prepare/placing/place.h"

#include "base/errors.h"
#include "job/records.h"
#include "prepare/arcs.h"
#include "prepare/fitting/grid.h"
#include "prepare/source/stroke_recorder.h"

#include <algorithm>
#include <iterator>
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

// Raises RunTimeError where something is drawn, or a control point stands, too far away.
void requireAllOnPaper(const std::vector<Stroke>& strokes) {
    for (const Stroke& stroke : strokes) {
        const StrokeExtents extents = extentsOf({&stroke, 1});
        if (extents.empty())
            continue;
        requireOnPaper(extents.low);
        requireOnPaper(extents.high);
        for (const Segment& segment : stroke.segments)
            if (segment.kind == SegmentKind::curve) {
                requireOnPaper(segment.first);
                requireOnPaper(segment.second);
            }
    }
}

// Nothing would be left of such a circle when it is written.
bool isPoint(const Stroke& stroke) {
    return stroke.isDot() ||
           (stroke.isCircle() && toGrid(distance(stroke.segments[0].first, stroke.start)) == 0);
}

} // namespace

void place(std::vector<Stroke>& strokes, const Placement& placement,
           std::vector<Stroke>* alongside) {
    const auto moveAll = [&](auto&& move) {
        movePoints(strokes, move);
        if (alongside != nullptr)
            movePoints(*alongside, move);
    };
    if (placement.scale != 1)
        moveAll([&](Point p) { return p * placement.scale; });
    const bool turns = placement.mirror != Mirror::none || placement.rotation != 0;
    Point corner;
    if (placement.origin || turns)
        corner = placement.origin.value_or(lowCorner(strokes));
    if (placement.mirror != Mirror::none) {
        const bool leftRight = placement.mirror == Mirror::leftRight;
        moveAll([&](Point p) { return leftRight ? Point{-p.x, p.y} : Point{p.x, -p.y}; });
        turnSweeps(strokes);
        if (alongside != nullptr)
            turnSweeps(*alongside);
    }
    if (placement.rotation != 0)
        moveAll([&](Point p) { return rotated(p, placement.rotation); });
    if (turns || placement.origin) {
        const Point shift = corner - lowCorner(strokes);
        if (shift != Point{})
            moveAll([&](Point p) { return p + shift; });
    }
    requireAllOnPaper(strokes);
}

std::vector<Stroke> mapPens(std::vector<Stroke>& strokes, const std::map<int, int>& pens) {
    std::set<int> tooHigh;
    for (Stroke& stroke : strokes) {
        if (const auto mapped = pens.find(stroke.pen); mapped != pens.end())
            stroke.pen = mapped->second;
        if (stroke.pen > penCount)
            tooHigh.insert(stroke.pen);
    }
    if (tooHigh.empty()) {
        const auto penless = std::stable_partition(
            strokes.begin(), strokes.end(), [](const Stroke& stroke) { return stroke.pen != 0; });
        std::vector<Stroke> taken(std::make_move_iterator(penless),
                                  std::make_move_iterator(strokes.end()));
        strokes.erase(penless, strokes.end());
        return taken;
    }
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
