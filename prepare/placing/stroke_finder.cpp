// SPDX-License-Identifier: MIT
#include "prepare/placing/stroke_finder.h"

#include <algorithm>
#include <tuple>

namespace torvik {

StrokeFinder::StrokeFinder(std::span<const Ends> strokes)
    : m_strokes(strokes), m_isLeft(2 * strokes.size(), true), m_left(2 * strokes.size()),
      m_placeOf(2 * strokes.size()) {
    m_ends.reserve(2 * strokes.size());
    for (std::size_t i = 0; i < strokes.size(); ++i) {
        m_ends.push_back({i, true});
        m_ends.push_back({i, false});
    }
    build(all());
    for (std::size_t i = 0; i < m_ends.size(); ++i)
        m_placeOf[2 * m_ends[i].stroke + (m_ends[i].isStart ? 0 : 1)] = i;
}

void StrokeFinder::build(const Part& part) {
    if (part.empty())
        return;
    const auto at = [this](std::size_t i) {
        return m_ends.begin() + static_cast<std::ptrdiff_t>(i);
    };
    std::nth_element(at(part.first), at(part.middle()), at(part.last),
                     [&](const StrokeEnd& a, const StrokeEnd& b) {
                         const Point p = placeOf(a);
                         const Point q = placeOf(b);
                         return std::tuple(part.byX ? p.x : p.y, a.stroke, a.isStart) <
                                std::tuple(part.byX ? q.x : q.y, b.stroke, b.isStart);
                     });
    m_left[part.middle()] = part.last - part.first;
    build(part.below());
    build(part.above());
}

void StrokeFinder::remove(std::size_t stroke) {
    removeEnd(m_placeOf[2 * stroke]);
    removeEnd(m_placeOf[2 * stroke + 1]);
}

void StrokeFinder::removeEnd(std::size_t place) {
    m_isLeft[place] = false;
    for (Part part = all(); !part.empty();) {
        --m_left[part.middle()];
        if (part.middle() == place)
            return;
        part = place < part.middle() ? part.below() : part.above();
    }
}

std::vector<StrokeEnd> StrokeFinder::nearest(Point place, std::size_t count) const {
    std::vector<Found> found;
    found.reserve(count + 1);
    search(all(), place, count, found);
    std::vector<StrokeEnd> ends;
    ends.reserve(found.size());
    for (const Found& one : found)
        ends.push_back(one.end);
    return ends;
}

void StrokeFinder::search(const Part& part, Point place, std::size_t count,
                          std::vector<Found>& found) const {
    if (part.empty() || m_left[part.middle()] == 0)
        return;
    const StrokeEnd& end = m_ends[part.middle()];
    const Point middle = placeOf(end);
    const double beyond = part.byX ? place.x - middle.x : place.y - middle.y;
    search(beyond < 0 ? part.below() : part.above(), place, count, found);

    const auto isWorthLooking = [&](double atLeast) {
        return found.size() < count || atLeast < found.back().distance;
    };
    if (const double d = distance(place, middle); m_isLeft[part.middle()] && isWorthLooking(d)) {
        const auto behind = std::find_if(found.begin(), found.end(),
                                         [&](const Found& one) { return d < one.distance; });
        found.insert(behind, {d, end});
        if (found.size() > count)
            found.pop_back();
    }
    if (isWorthLooking(std::fabs(beyond)))
        search(beyond < 0 ? part.above() : part.below(), place, count, found);
}

} // namespace torvik
