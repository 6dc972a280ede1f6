// SPDX-License-Identifier: MIT
// The paper: takes what the pen draws and keeps it as strokes, in plotter units. A stroke runs from
// the pen coming down to its going up; a pen that comes down and goes up without a move is a dot.
// Refuses places more than 100 m away and more segments than the given limit.
#pragma once

#include "prepare/strokes.h"

#include <cstddef>
#include <vector>

namespace torvik {

struct SourceReport;

class StrokeRecorder {
public:
    StrokeRecorder(std::vector<Stroke>& strokes, SourceReport& report, std::size_t segmentLimit)
        : m_strokes(strokes), m_report(report), m_segmentLimit(segmentLimit) {}

    // The pen in the holder, 0 for none.
    void selectPen(int pen);
    int pen() const { return m_pen; }
    // Whether what pen 0 draws is kept, for it has a colour.
    void keepPenZero(bool kept) { m_keepsPenZero = kept; }
    bool draws() const { return m_pen != 0 || m_keepsPenZero; }

    void land(Point place); // the pen comes down
    void lift();
    // Ends the stroke in progress although the pen stays down.
    void breakStroke();
    // About so many segments will be drawn one after the other.
    void expect(std::size_t segments) { m_expected = segments; }
    // Draws on from where the pen is.
    void draw(Point from, const Segment& segment);
    // Draws a figure of its own: the stroke that is in progress goes on afterwards.
    void addFigure(Stroke figure);

    void endPage();

private:
    bool hasPen();
    void count(std::size_t segments);
    void store(Stroke stroke);

    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    std::vector<Stroke>& m_strokes;
    SourceReport& m_report;
    std::size_t m_segmentLimit;
    std::size_t m_segments = 0;
    std::size_t m_expected = 0;
    std::size_t m_current = none; // the stroke in progress
    int m_pen = 1;
    bool m_keepsPenZero = false;
    bool m_landed = false; // the pen is down and has drawn nothing yet
    Point m_landedAt;
    bool m_pageEnded = false;
};

// Raises RunTimeError for a place more than 100 m from the origin or no number at all.
void requireOnPaper(Point place);

} // namespace torvik
