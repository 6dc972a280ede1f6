// SPDX-License-Identifier: MIT
#include "prepare/source/stroke_recorder.h"

#include "base/errors.h"
#include "prepare/source/source_report.h"

#include <algorithm>
#include <string>
#include <utility>

namespace torvik {

void requireOnPaper(Point place) {
    constexpr double farthest = 4'000'000; // plotter units
    if (!(std::fabs(place.x) <= farthest && std::fabs(place.y) <= farthest))
        throw RunTimeError("a place lies more than 100 m from the origin");
}

void StrokeRecorder::selectPen(int pen) {
    lift();
    m_pen = pen;
    m_report.selectedPen = true;
}

void StrokeRecorder::land(Point place) {
    m_landed = true;
    m_landedAt = place;
}

void StrokeRecorder::lift() {
    m_current = none;
    if (std::exchange(m_landed, false) && hasPen()) {
        count(1);
        store({m_pen, m_landedAt, {}});
    }
}

void StrokeRecorder::breakStroke() {
    m_current = none;
    m_landed = false;
}

void StrokeRecorder::endPage() {
    breakStroke();
    m_pageEnded = !m_strokes.empty();
}

void StrokeRecorder::draw(Point from, const Segment& segment) {
    m_landed = false;
    if (!hasPen())
        return;
    count(1);
    if (m_current == none) {
        store({m_pen, from, {}});
        m_current = m_strokes.size() - 1;
        m_strokes.back().segments.reserve(std::min(m_expected, m_segmentLimit));
    }
    m_strokes[m_current].segments.push_back(segment);
}

void StrokeRecorder::addFigure(Stroke figure) {
    m_landed = false;
    if (figure.segments.empty() || !hasPen())
        return;
    count(figure.segments.size());
    figure.pen = m_pen;
    store(std::move(figure));
}

bool StrokeRecorder::hasPen() {
    if (!draws())
        m_report.lose(Loss::noPen);
    return draws();
}

void StrokeRecorder::count(std::size_t segments) {
    m_segments += segments;
    if (m_segments > m_segmentLimit)
        throw RunTimeError("the drawing has more than " + std::to_string(m_segmentLimit) +
                           " lines, arcs and curves");
}

void StrokeRecorder::store(Stroke stroke) {
    if (std::exchange(m_pageEnded, false))
        m_report.lose(Loss::pages);
    m_report.drewBeforePen = m_report.drewBeforePen || !m_report.selectedPen;
    m_strokes.push_back(std::move(stroke));
}

} // namespace torvik
