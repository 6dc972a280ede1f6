// SPDX-License-Identifier: MIT
#include "prepare/source/polygon_buffer.h"

#include <utility>

namespace torvik {

void PolygonBuffer::open(Point place, bool penDown) {
    clear();
    m_open = true;
    m_openedAt = place;
    m_wasPenDown = penDown;
    m_subpolygons.push_back({{1, place, {}}, {}});
}

void PolygonBuffer::closeSubpolygon(bool penDown) {
    m_startPending = true;
    Subpolygon& last = m_subpolygons.back();
    Stroke& outline = last.outline;
    if (outline.segments.empty() || outline.end() == outline.start)
        return;
    outline.segments.push_back(lineSegment(outline.start));
    last.isDrawn.push_back(penDown);
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
}

void PolygonBuffer::travel(const Segment& segment, bool penDown) {
    if (std::exchange(m_startPending, false)) {
        m_subpolygons.push_back({{1, segment.end, {}}, {}});
        return;
    }
    Subpolygon& last = m_subpolygons.back();
    last.outline.segments.push_back(segment);
    last.isDrawn.push_back(penDown);
}

void PolygonBuffer::addCircle(Stroke circle, bool penDown) {
    closeSubpolygon(penDown);
    std::vector<bool> isDrawn(circle.segments.size(), true);
    m_subpolygons.push_back({std::move(circle), std::move(isDrawn)});
}

std::vector<Stroke> PolygonBuffer::edges() const {
    std::vector<Stroke> strokes;
    for (const auto& [outline, isDrawn] : m_subpolygons) {
        Stroke run{1, outline.start, {}};
        for (std::size_t i = 0; i < isDrawn.size(); ++i) {
            if (isDrawn[i]) {
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
    for (const Subpolygon& subpolygon : m_subpolygons)
        strokes.push_back(subpolygon.outline);
    return strokes;
}

} // namespace torvik
