// SPDX-License-Identifier: MIT
#include "prepare/placing/join.h"

#include "prepare/fitting/grid.h"

#include <array>
#include <set>
#include <tuple>
#include <utility>

namespace torvik {
namespace {

// What the rounding of arcs may leave between two ends: far less than any machine can tell.
constexpr double touching = 0.01;

bool isOpen(const Stroke& stroke) {
    return !stroke.isDot() && distance(stroke.start, stroke.end()) > touching;
}

// A segment whichever way it is drawn, to a ten-thousandth of a plotter unit.
using Key = std::tuple<int, SegmentKind, std::array<double, 9>>;

Key keyOf(int pen, Point start, Segment segment) {
    Point end = segment.end;
    const bool isTurned = std::pair(end.x, end.y) < std::pair(start.x, start.y);
    if (isTurned) {
        std::swap(start, end);
        segment.sweep = -segment.sweep;
        if (segment.kind == SegmentKind::curve)
            std::swap(segment.first, segment.second);
    }
    const bool isClosed = start == end;
    std::array<double, 9> numbers{start.x,
                                  start.y,
                                  end.x,
                                  end.y,
                                  segment.first.x,
                                  segment.first.y,
                                  segment.second.x,
                                  segment.second.y,
                                  isClosed ? std::fabs(segment.sweep) : segment.sweep};
    for (double& number : numbers)
        number = toGrid(number);
    return {pen, segment.kind, numbers};
}

// The parts of a stroke that are left without its repeated segments.
std::vector<Stroke> withoutRepeated(const Stroke& stroke, std::set<Key>& seen, long& count) {
    std::vector<Stroke> parts;
    Stroke part{stroke.pen, stroke.start, {}};
    for (const Segment& segment : stroke.segments) {
        const bool isNew = seen.insert(keyOf(stroke.pen, part.end(), segment)).second;
        if (isNew) {
            part.segments.push_back(segment);
            continue;
        }
        ++count;
        if (!part.segments.empty())
            parts.push_back(std::move(part));
        part = {stroke.pen, segment.end, {}};
    }
    if (!part.segments.empty() || stroke.isDot())
        parts.push_back(std::move(part));
    return parts;
}

} // namespace

long joinTouching(std::vector<Stroke>& strokes) {
    std::vector<Stroke> result;
    result.reserve(strokes.size());
    for (Stroke& stroke : strokes) {
        const bool goesOn = !result.empty() && result.back().pen == stroke.pen &&
                            isOpen(result.back()) && isOpen(stroke) &&
                            distance(result.back().end(), stroke.start) <= touching;
        if (!goesOn) {
            result.push_back(std::move(stroke));
            continue;
        }
        auto& segments = result.back().segments;
        segments.insert(segments.end(), stroke.segments.begin(), stroke.segments.end());
    }
    const auto joined = static_cast<long>(strokes.size() - result.size());
    strokes = std::move(result);
    return joined;
}

long dropDuplicates(std::vector<Stroke>& strokes) {
    std::set<Key> seen;
    std::vector<Stroke> result;
    long count = 0;
    for (const Stroke& stroke : strokes)
        for (Stroke& part : withoutRepeated(stroke, seen, count))
            result.push_back(std::move(part));
    strokes = std::move(result);
    return count;
}

} // namespace torvik
