// SPDX-License-Identifier: MIT
#include "prepare/placing/inside_first.h"

#include "base/inside_polygon.h"
#include "prepare/beside/outlines.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <span>

namespace torvik {
namespace {

struct Shape {
    StrokeExtents extents;
    std::vector<Point> corners; // none of what is open
    std::size_t stroke = 0;
};

bool contains(const StrokeExtents& outer, const StrokeExtents& inner) {
    return outer.low.x < inner.low.x && outer.low.y < inner.low.y && outer.high.x > inner.high.x &&
           outer.high.y > inner.high.y;
}

// From left to right; of the outlines that have begun, only those that still go on are asked.
void countDepths(std::span<const Stroke> strokes, double tolerance, std::size_t offset,
                 std::vector<std::size_t>& depths) {
    std::vector<Shape> shapes(strokes.size());
    for (std::size_t i = 0; i < strokes.size(); ++i) {
        shapes[i].stroke = i;
        shapes[i].extents = extentsOf(strokes.subspan(i, 1));
        if (isClosed(strokes[i], 0))
            shapes[i].corners = cornersOf(strokes[i], tolerance);
    }
    std::sort(shapes.begin(), shapes.end(),
              [](const Shape& a, const Shape& b) { return a.extents.low.x < b.extents.low.x; });
    std::vector<const Shape*> begun;
    for (const Shape& shape : shapes) {
        std::erase_if(
            begun, [&](const Shape* outer) { return outer->extents.high.x < shape.extents.low.x; });
        const Point place = strokes[shape.stroke].start;
        for (const Shape* const outer : begun)
            if (contains(outer->extents, shape.extents) && isInsidePolygon(outer->corners, place))
                ++depths[offset + shape.stroke];
        if (!shape.corners.empty())
            begun.push_back(&shape);
    }
}

// Of each stroke, how many closed strokes of its pen it lies inside of. Strokes are in the order of
// their pens.
std::vector<std::size_t> depthsInside(std::span<const Stroke> strokes, double tolerance) {
    std::vector<std::size_t> depths(strokes.size(), 0);
    for (std::size_t first = 0; first < strokes.size();) {
        std::size_t last = first;
        while (last < strokes.size() && strokes[last].pen == strokes[first].pen)
            ++last;
        countDepths(strokes.subspan(first, last - first), tolerance, first, depths);
        first = last;
    }
    return depths;
}

} // namespace

void drawInsideFirst(std::vector<Stroke>& strokes, double tolerance) {
    const std::vector<std::size_t> depths = depthsInside(strokes, tolerance);
    std::vector<std::size_t> order(strokes.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return strokes[a].pen != strokes[b].pen ? strokes[a].pen < strokes[b].pen
                                                : depths[a] > depths[b];
    });
    std::vector<Stroke> result;
    result.reserve(strokes.size());
    for (const std::size_t i : order)
        result.push_back(std::move(strokes[i]));
    strokes = std::move(result);
}

} // namespace torvik
