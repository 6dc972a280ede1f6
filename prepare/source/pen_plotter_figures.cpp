// SPDX-License-Identifier: MIT
// Arcs, curves and the figures that leave the pen where it was. Where the drawing's units differ
// in X and Y, arcs become curves.
#include "prepare/arcs.h"
#include "prepare/source/pen_plotter.h"
#include "prepare/source/source_report.h"

#include <algorithm>
#include <utility>

namespace torvik {
namespace {

// Curves stand for pieces of an ellipse of this many degrees at most; they are then off by less
// than 0.00001 of its size.
constexpr double curveSweep = 45;

// The part of a user's circle, as the curve that fits it best, in the user's units.
Segment curveForArc(Point start, Point centre, double sweep) {
    const Point end = centre + rotated(start - centre, sweep);
    const double handle = 4.0 / 3.0 * std::tan(radians(sweep / 4));
    return curveSegment(start + turnedLeft(start - centre) * handle,
                        end - turnedLeft(end - centre) * handle, end);
}

} // namespace

void PenPlotter::noteChords(const Parameters& parameters, std::size_t place) {
    const auto& numbers = parameters.numbers;
    if (m_chordsAreAngles && numbers.size() > place && std::fabs(numbers[place]) > m_roundTurn)
        m_report.lose(Loss::coarseChords);
}

// Adds an arc of the user's units to the end of a stroke of plotter units; a full turn or more is
// two half turns and the rest.
void PenPlotter::addArc(Stroke& stroke, Point centre, double sweep) const {
    if (std::fabs(sweep) >= fullTurn) {
        const double half = std::copysign(fullTurn / 2, sweep);
        addArc(stroke, centre, half);
        addArc(stroke, centre, half);
        sweep = std::fmod(sweep, fullTurn);
    }
    const Point from = stroke.end();
    const Point centreOnPaper = m_frame.toPlotter(centre);
    if (sweep == 0 || from == centreOnPaper)
        return;
    if (m_frame.keepsCircles()) {
        stroke.segments.push_back(
            arcSegment(from, centreOnPaper, m_frame.isMirrored() ? -sweep : sweep));
        return;
    }
    const double pieces = std::ceil(std::fabs(sweep) / curveSweep);
    Point start = m_frame.toUser(from);
    for (int i = 0; i < static_cast<int>(pieces); ++i) {
        const Segment curve = curveForArc(start, centre, sweep / pieces);
        start = curve.end;
        stroke.segments.push_back(curveSegment(m_frame.toPlotter(curve.first),
                                               m_frame.toPlotter(curve.second),
                                               m_frame.toPlotter(curve.end)));
    }
}

void PenPlotter::travelAlong(const Stroke& stroke) {
    for (const Segment& segment : stroke.segments) {
        requireOnPaper(segment.first);
        requireOnPaper(segment.second);
        travel(segment);
    }
}

void PenPlotter::drawArc(Point centre, double sweep) {
    if (!m_down && m_isPlain)
        setDown(true);
    else if (!m_down && !m_polygon.isOpen())
        m_report.lose(Loss::arcsWithPenUp);
    Stroke stroke{1, m_place, {}};
    addArc(stroke, centre, sweep);
    travelAlong(stroke);
}

void PenPlotter::arcAbsolute(const Parameters& parameters) {
    if (!require(parameters, 3))
        return;
    const auto& numbers = parameters.numbers;
    noteChords(parameters, 3);
    drawArc({numbers[0], numbers[1]}, numbers[2]);
}

void PenPlotter::arcRelative(const Parameters& parameters) {
    if (!require(parameters, 3))
        return;
    const auto& numbers = parameters.numbers;
    noteChords(parameters, 3);
    drawArc(userPlace() + Point{numbers[0], numbers[1]}, numbers[2]);
}

// Three points on one line make a line; an end that is the start makes a circle whose diameter
// reaches to the point between.
void PenPlotter::drawArcThrough(Point between, Point end) {
    const Point start = userPlace();
    if (end == start && between != start) {
        drawArc((start + between) * 0.5, fullTurn);
        return;
    }
    if (const auto centre = centreThrough(start, between, end)) {
        drawArc(*centre, sweepThrough(*centre, start, between, end));
        jump(m_frame.toPlotter(end));
    } else {
        travel(lineSegment(m_frame.toPlotter(end)));
    }
}

void PenPlotter::arcThroughAbsolute(const Parameters& parameters) {
    if (!require(parameters, 4))
        return;
    const auto& numbers = parameters.numbers;
    noteChords(parameters, 4);
    drawArcThrough({numbers[0], numbers[1]}, {numbers[2], numbers[3]});
}

void PenPlotter::arcThroughRelative(const Parameters& parameters) {
    if (!require(parameters, 4))
        return;
    const auto& numbers = parameters.numbers;
    noteChords(parameters, 4);
    const Point start = userPlace();
    drawArcThrough(start + Point{numbers[0], numbers[1]}, start + Point{numbers[2], numbers[3]});
}

void PenPlotter::drawBeziers(const Parameters& parameters, bool relative) {
    const auto& numbers = parameters.numbers;
    constexpr std::size_t perCurve = 6;
    if (numbers.size() % perCurve != 0 || numbers.empty())
        m_report.lose(Loss::malformed);
    for (std::size_t i = 0; i + perCurve <= numbers.size(); i += perCurve) {
        const Point from = m_place;
        const auto place = [&](std::size_t pair) {
            const Point user{numbers[i + 2 * pair], numbers[i + 2 * pair + 1]};
            return relative ? from + m_frame.vectorToPlotter(user) : m_frame.toPlotter(user);
        };
        travelAlong({1, from, {curveSegment(place(0), place(1), place(2))}});
    }
}

void PenPlotter::bezierAbsolute(const Parameters& parameters) {
    drawBeziers(parameters, false);
}

void PenPlotter::bezierRelative(const Parameters& parameters) {
    drawBeziers(parameters, true);
}

// --- figures

void PenPlotter::drawFigure(Stroke figure) {
    for (const Segment& segment : figure.segments)
        requireOnPaper(segment.end);
    m_recorder.addFigure(std::move(figure));
}

void PenPlotter::fillFigure(Stroke figure) {
    m_report.lose(Loss::fill);
    drawFigure(std::move(figure));
}

Stroke PenPlotter::circleAbout(double radius) const {
    if (m_frame.keepsCircles())
        return circleStroke(1, m_place, std::fabs(radius) * m_frame.factor());
    const Point centre = userPlace();
    Stroke stroke{1, m_frame.toPlotter(centre + Point{radius, 0}), {}};
    addArc(stroke, centre, fullTurn);
    return stroke;
}

void PenPlotter::circle(const Parameters& parameters) {
    if (!require(parameters, 1))
        return;
    noteChords(parameters, 1);
    Stroke stroke = circleAbout(parameters.numbers[0]);
    if (m_polygon.isOpen()) {
        requireOnPaper(stroke.start);
        m_polygon.addCircle(std::move(stroke), m_down);
    } else {
        drawFigure(std::move(stroke));
    }
}

Stroke PenPlotter::rectangle(Point corner) const {
    const Point low = userPlace();
    return {1,
            m_place,
            {lineSegment(m_frame.toPlotter({corner.x, low.y})),
             lineSegment(m_frame.toPlotter(corner)),
             lineSegment(m_frame.toPlotter({low.x, corner.y})), lineSegment(m_place)}};
}

void PenPlotter::edgeRectangleAbsolute(const Parameters& parameters) {
    if (require(parameters, 2))
        drawFigure(rectangle({parameters.numbers[0], parameters.numbers[1]}));
}

void PenPlotter::edgeRectangleRelative(const Parameters& parameters) {
    if (require(parameters, 2))
        drawFigure(rectangle(userPlace() + Point{parameters.numbers[0], parameters.numbers[1]}));
}

void PenPlotter::fillRectangleAbsolute(const Parameters& parameters) {
    if (require(parameters, 2))
        fillFigure(rectangle({parameters.numbers[0], parameters.numbers[1]}));
}

void PenPlotter::fillRectangleRelative(const Parameters& parameters) {
    if (require(parameters, 2))
        fillFigure(rectangle(userPlace() + Point{parameters.numbers[0], parameters.numbers[1]}));
}

// A radius, the angle where it begins and the sweep; both straight edges belong to the outline.
Stroke PenPlotter::wedge(const Parameters& parameters) const {
    const double radius = parameters.numbers[0];
    const double sweep = parameters.numbers[2];
    if (std::fabs(sweep) >= fullTurn)
        return circleAbout(radius);
    const Point centre = userPlace();
    const Point edge = centre + rotated({radius, 0}, parameters.numbers[1]);
    Stroke stroke{1, m_place, {lineSegment(m_frame.toPlotter(edge))}};
    addArc(stroke, centre, sweep);
    stroke.segments.push_back(lineSegment(m_place));
    return stroke;
}

void PenPlotter::edgeWedge(const Parameters& parameters) {
    if (!require(parameters, 3))
        return;
    noteChords(parameters, 3);
    drawFigure(wedge(parameters));
}

void PenPlotter::fillWedge(const Parameters& parameters) {
    if (!require(parameters, 3))
        return;
    noteChords(parameters, 3);
    fillFigure(wedge(parameters));
}

// A line across the pen's place: the first tick length along the direction, the second against it.
void PenPlotter::drawTick(Point direction, double corners) {
    const Point along = m_frame.pageVector(direction * (corners / 100));
    const Point from = m_place - along * m_tick.y;
    const Point to = m_place + along * m_tick.x;
    if (from != to)
        drawFigure({1, from, {lineSegment(to)}});
}

void PenPlotter::tickX(const Parameters&) {
    drawTick({0, 1}, std::fabs(m_frame.cornerDistance().y));
}

void PenPlotter::tickY(const Parameters&) {
    drawTick({1, 0}, std::fabs(m_frame.cornerDistance().x));
}

} // namespace torvik
