// SPDX-License-Identifier: MIT
#include "prepare/source/polygon_buffer.h"

#include <utility>

namespace torvik {

void PolygonBuffer::open(Point place, bool penDown) {
    clear();
    m_open = true;
    m_openedAt = place;
    m_wasPenDown = penDown;
    m_subpolygons.push_back({{1, place, {}}, {}, false});
}

void PolygonBuffer::closeSubpolygon(bool penDown) {
    m_startPending = true;
    Subpolygon& last = m_subpolygons.back();
    Stroke& outline = last.outline;
    if (outline.segments.empty() || outline.end() == outline.start)
        return;
    outline.segments.push_back(lineSegment(outline.start));
    last.isDrawn.push_back(penDown);
    last.isClosedByBuffer = true;
}

Point PolygonBuffer::close(bool penDown) {
    closeSubpolygon(penDown);
    m_open = false;
    return m_openedAt;
}

void PolygonBuffer::clear() {
    m_subpolygons.clear();
    m_open = false;
    m_startPending = false;
    m_outlinedBy = 0;
    m_edgedBy = 0;
}

void PolygonBuffer::travel(const Segment& segment, bool penDown) {
    if (std::exchange(m_startPending, false)) {
        m_subpolygons.push_back({{1, segment.end, {}}, {}, false});
        return;
    }
    Subpolygon& last = m_subpolygons.back();
    last.outline.segments.push_back(segment);
    last.isDrawn.push_back(penDown);
}

void PolygonBuffer::addCircle(Stroke circle, bool penDown) {
    closeSubpolygon(penDown);
    std::vector<bool> isDrawn(circle.segments.size(), true);
    m_subpolygons.push_back({std::move(circle), std::move(isDrawn), false});
}

// The outlines that the pen closed while it was down, each a part of its own, and what is left of
// the subpolygon, unless that only leads from one to the other.
void PolygonBuffer::takeApart(const Subpolygon& subpolygon, std::vector<Subpolygon>& parts) {
    constexpr double near = 0.01; // plotter units
    const auto& segments = subpolygon.outline.segments;
    const std::size_t count = segments.size() - (subpolygon.isClosedByBuffer ? 1 : 0);
    Subpolygon rest{{1, subpolygon.outline.start, {}}, {}, false};
    bool hasLoop = false;
    bool hasEdge = false;
    const auto keep = [&](std::size_t i) {
        rest.outline.segments.push_back(segments[i]);
        rest.isDrawn.push_back(subpolygon.isDrawn[i]);
    };
    for (std::size_t i = 0; i < count;) {
        std::size_t end = i;
        while (end < count && subpolygon.isDrawn[end])
            ++end;
        const Point from = i == 0 ? subpolygon.outline.start : segments[i - 1].end;
        if (end > i && distance(segments[end - 1].end, from) < near) {
            const auto first = segments.begin();
            Subpolygon& loop = parts.emplace_back();
            loop.outline.start = from;
            loop.outline.segments.assign(first + static_cast<std::ptrdiff_t>(i),
                                         first + static_cast<std::ptrdiff_t>(end));
            loop.isDrawn.assign(end - i, true);
            hasLoop = true;
        } else {
            hasEdge = hasEdge || end > i;
            for (std::size_t edge = i; edge < end; ++edge)
                keep(edge);
        }
        if (end < count)
            keep(end);
        i = end + 1;
    }
    if (count < segments.size())
        keep(count);
    if (hasEdge || !hasLoop)
        parts.push_back(std::move(rest));
}

std::vector<PolygonBuffer::Subpolygon> PolygonBuffer::parts() const {
    std::vector<Subpolygon> parts;
    for (const Subpolygon& subpolygon : m_subpolygons)
        takeApart(subpolygon, parts);
    return parts;
}

std::vector<Stroke> PolygonBuffer::edges(bool drawn) const {
    std::vector<Stroke> strokes;
    for (const auto& [outline, isDrawn, isClosed] : parts()) {
        Stroke run{1, outline.start, {}};
        for (std::size_t i = 0; i < isDrawn.size(); ++i) {
            if (isDrawn[i] == drawn) {
                run.segments.push_back(outline.segments[i]);
                continue;
            }
            if (!run.segments.empty())
                strokes.push_back(std::move(run));
            run = {1, outline.segments[i].end, {}};
        }
        if (!run.segments.empty())
            strokes.push_back(std::move(run));
    }
    return strokes;
}

std::vector<Stroke> PolygonBuffer::outlines() const {
    std::vector<Stroke> strokes;
    for (Subpolygon& part : parts())
        strokes.push_back(std::move(part.outline));
    return strokes;
}

} // namespace torvik
