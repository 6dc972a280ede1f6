// SPDX-License-Identifier: MIT
#include "prepare/fitting/stroke_fitter.h"

#include "base/errors.h"
#include "prepare/arcs.h"
#include "prepare/fitting/chord_fit.h"
#include "prepare/fitting/circle_fit.h"
#include "prepare/fitting/flatten.h"
#include "prepare/fitting/grid.h"
#include "prepare/fitting/readable_arc.h"

#include <algorithm>
#include <array>
#include <utility>

namespace torvik {
namespace {

// What the rounding of coordinates may add to a distance.
constexpr double rounding = 0.0003;

// How far a curve's chords may be from it, in parts of the tolerance.
constexpr double flattening = 0.02;

constexpr double nearlyFullTurn = 359.9;

bool isArc(const Segment& segment) {
    return segment.kind == SegmentKind::arc;
}

bool isLine(const Segment& segment) {
    return segment.kind == SegmentKind::line;
}

double radiusOf(const Segment& arc) {
    return distance(arc.first, arc.end);
}

// Whether two arcs may belong to one circle: it would nowhere be farther off than `limit`.
bool areOnOneCircle(const Segment& a, const Segment& b, double limit) {
    return isArc(a) && isArc(b) && (a.sweep < 0) == (b.sweep < 0) &&
           distance(a.first, b.first) + std::fabs(radiusOf(a) - radiusOf(b)) <= limit;
}

} // namespace

Stroke StrokeFitter::fitted() {
    settle(m_stroke);
    if (m_stroke.segments.empty() || m_stroke.isCircle())
        return std::move(m_stroke);
    expand();
    m_pieces = m_own;
    settlePieces(m_pieces);
    // What a repair brings back is fitted once more, as it would be the next time.
    constexpr int mostRounds = 16;
    std::vector<Piece> repaired;
    for (int i = 0; i < mostRounds && (i == 0 || repaired != m_pieces); ++i) {
        repaired = m_pieces;
        if (becomesCircleInPasses())
            return std::move(m_stroke);
        if (!repair())
            break;
    }
    if (m_nearCircleTolerance > 0) {
        ++m_report.nearCircles;
        m_report.nearCircleTolerance =
            std::max(m_report.nearCircleTolerance, m_nearCircleTolerance);
    }
    m_stroke.segments.clear();
    for (const Piece& piece : m_pieces) {
        m_stroke.segments.push_back(piece.segment);
        m_report.arcs += isArc(piece.segment) && piece.bulge > 0 ? 1 : 0;
        m_report.largestBulge = std::max(m_report.largestBulge, piece.bulge);
    }
    m_report.largestDeviation = std::max(m_report.largestDeviation, m_deviation);
    return std::move(m_stroke);
}

// Fits until nothing changes any more; true where it all becomes a circle.
bool StrokeFitter::becomesCircleInPasses() {
    constexpr int mostPasses = 8;
    for (int i = 0; i < mostPasses; ++i) {
        if (m_options.arcs && becomesCircle())
            return true;
        if (m_keepsOwn || !pass())
            break;
    }
    return false;
}

void StrokeFitter::expand() {
    m_points.push_back(m_stroke.start);
    Point place = m_stroke.start;
    for (const Segment& segment : m_stroke.segments) {
        if (segment.kind == SegmentKind::curve)
            takeCurveApart(place, segment);
        else
            takeOwn(place, segment);
        place = m_own.empty() ? place : m_own.back().segment.end;
    }
}

void StrokeFitter::takeCurveApart(Point start, const Segment& curve) {
    constexpr std::size_t mostPoints = 10000000;
    ++m_report.curves;
    for (const Point& end : flattenCurve(start, curve, m_options.tolerance * flattening)) {
        m_points.push_back(toGrid(end));
        m_own.push_back({lineSegment(m_points.back()), m_points.size() - 1, 0});
    }
    if (m_points.size() > mostPoints)
        throw RunTimeError("a curve of the drawing is too large to be drawn with this tolerance");
}

void StrokeFitter::takeOwn(Point start, const Segment& segment) {
    const bool asLines = isArc(segment) && isTooLarge(start, segment);
    const auto lines = asLines ? linesForArc(start, segment, m_options.tolerance / 2)
                               : std::vector<Segment>{segment};
    if (isArc(segment) && !asLines)
        for (const double part : {0.25, 0.5, 0.75})
            m_points.push_back(pointOnArc(start, segment, part));
    for (const Segment& line : lines) {
        m_points.push_back(line.end);
        m_own.push_back({line, m_points.size() - 1, 0});
    }
}

// Every piece begins where the one before it ends as written. Lines of no length go.
void StrokeFitter::settlePieces(std::vector<Piece>& pieces) const {
    std::size_t kept = 0;
    std::size_t last = 0;
    for (const Piece& piece : pieces) {
        last = piece.last;
        const Point place = kept == 0 ? m_stroke.start : pieces[kept - 1].segment.end;
        const Segment segment = gridSegment(place, piece.segment);
        if (!isLine(segment) || segment.end != place)
            pieces[kept++] = {segment, piece.last, piece.bulge};
    }
    pieces.resize(kept);
    if (kept > 0)
        pieces.back().last = last;
}

bool StrokeFitter::pass() {
    std::vector<Piece> result;
    result.reserve(m_pieces.size());
    for (std::size_t i = 0; i < m_pieces.size();) {
        std::size_t end = i;
        while (end < m_pieces.size() && isLine(m_pieces[end].segment))
            ++end;
        if (end - i >= 2)
            fitRun(i, end, result);
        else
            result.push_back(m_pieces[i]);
        i = std::max(end, i + 1);
    }
    if (m_options.arcs)
        joinArcs(result);
    settlePieces(result);
    makeReadable(result);
    const bool same =
        std::equal(m_pieces.begin(), m_pieces.end(), result.begin(), result.end(),
                   [](const Piece& a, const Piece& b) { return a.segment == b.segment; });
    if (!same)
        m_pieces = std::move(result);
    return !same;
}

void StrokeFitter::fitRun(std::size_t first, std::size_t last, std::vector<Piece>& result) const {
    std::vector<Point> points;
    points.reserve(last - first + 1);
    points.push_back(first == 0 ? m_stroke.start : m_pieces[first - 1].segment.end);
    for (std::size_t i = first; i < last; ++i)
        points.push_back(m_pieces[i].segment.end);
    for (const FittedPiece& piece : fitChords(std::move(points), m_options))
        result.push_back({piece.segment, m_pieces[first + piece.last - 1].last, piece.bulge});
}

void StrokeFitter::joinArcs(std::vector<Piece>& pieces) const {
    constexpr double mostSweep = 355;
    std::vector<Piece> result;
    for (const Piece& piece : pieces) {
        if (!result.empty() &&
            areOnOneCircle(result.back().segment, piece.segment, m_options.tolerance / 2)) {
            Piece& before = result.back();
            const double sweep = before.segment.sweep + piece.segment.sweep;
            const Point start =
                result.size() == 1 ? m_stroke.start : result[result.size() - 2].segment.end;
            const Segment joint = gridArc(start, piece.segment.end, sweep);
            if (std::fabs(sweep) <= mostSweep &&
                areOnOneCircle(joint, piece.segment, m_options.tolerance)) {
                before = {joint, piece.last, std::max(before.bulge, piece.bulge)};
                continue;
            }
        }
        result.push_back(piece);
    }
    pieces = std::move(result);
}

void StrokeFitter::makeReadable(std::vector<Piece>& pieces) const {
    std::vector<Piece> result;
    result.reserve(pieces.size());
    Point place = m_stroke.start;
    std::size_t reached = 0;
    for (const Piece& piece : pieces) {
        if (!isArc(piece.segment) || !isMisread(place, piece.segment)) {
            result.push_back(piece);
        } else {
            // A line that leads in stands for none of the stroke's own points.
            for (const Segment& segment : withLeadIn(place, piece.segment))
                result.push_back({segment, reached, isArc(segment) ? piece.bulge : 0});
            result.back().last = piece.last;
        }
        reached = piece.last;
        place = result.back().segment.end;
    }
    pieces = std::move(result);
}

// --- circles

bool StrokeFitter::isClosed() const {
    return distance(m_stroke.start, m_pieces.back().segment.end) <= m_options.tolerance;
}

bool StrokeFitter::becomesCircle() {
    if (m_pieces.empty() || !isClosed())
        return false;
    const auto ofKind = [&](auto is) {
        return std::all_of(m_pieces.begin(), m_pieces.end(),
                           [&](const Piece& piece) { return is(piece.segment); });
    };
    return ofKind(isLine) ? becomesCircleOfLines() : ofKind(isArc) && becomesCircleOfArcs();
}

bool StrokeFitter::becomesCircleOfLines() {
    std::vector<Point> corners{m_stroke.start};
    corners.reserve(m_pieces.size());
    for (const Piece& piece : std::span(m_pieces).first(m_pieces.size() - 1))
        corners.push_back(piece.segment.end);
    const CircleFit fit = fitCircle(corners, m_options.tolerance, m_options.roundTurn);
    constexpr double nearTolerances = 4;
    if (fit.deviation > m_options.tolerance) {
        if (fit.deviation <= nearTolerances * m_options.tolerance)
            m_nearCircleTolerance = fit.deviation;
        return false;
    }
    if (!isCircleThroughOwnPoints(fit.centre, fit.radius)) {
        // Only the corners that are left lie on a circle: what stood between them must stay.
        m_pieces = m_own;
        settlePieces(m_pieces);
        m_keepsOwn = true;
        return false;
    }
    m_report.largestBulge =
        std::max(m_report.largestBulge, fit.radius * (1 - std::cos(radians(fit.largestTurn) / 2)));
    return true;
}

bool StrokeFitter::becomesCircleOfArcs() {
    double sweep = 0;
    Point centre;
    double radius = 0;
    for (const Piece& piece : m_pieces) {
        const Segment& arc = piece.segment;
        if (!areOnOneCircle(m_pieces[0].segment, arc, m_options.tolerance))
            return false;
        sweep += arc.sweep;
        centre = centre + arc.first * arc.sweep;
        radius += radiusOf(arc) * arc.sweep;
    }
    if (std::fabs(sweep) < nearlyFullTurn || std::fabs(sweep) > 2 * fullTurn - nearlyFullTurn)
        return false;
    return isCircleThroughOwnPoints(centre * (1 / sweep), radius / sweep);
}

bool StrokeFitter::isCircleThroughOwnPoints(Point centre, double radius) {
    double deviation = 0;
    for (const Point& point : m_points)
        deviation = std::max(deviation, std::fabs(distance(centre, point) - radius));
    if (deviation > m_options.tolerance + rounding)
        return false;
    ++m_report.circles;
    m_report.largestDeviation = std::max(m_report.largestDeviation, deviation);
    m_stroke = circleStroke(m_stroke.pen, centre, radius);
    settle(m_stroke);
    return true;
}

// --- measuring

double StrokeFitter::deviation(Point from, const Segment& segment, std::size_t first,
                               std::size_t last) const {
    double largest = 0;
    for (std::size_t i = first; i <= last; ++i)
        largest =
            std::max(largest, isArc(segment) ? distanceToArc(from, segment, m_points[i])
                                             : distanceToLine(from, segment.end, m_points[i]));
    return largest;
}

// A piece that left a point of the stroke behind gives way to what the stroke itself has there.
// True where there was one.
bool StrokeFitter::repair() {
    bool isRepaired = false;
    m_deviation = 0;
    std::vector<Piece> result;
    std::size_t first = 1;
    std::size_t own = 0;
    std::size_t leadIns = 0; // at the end of the result
    Point from = m_stroke.start;
    for (const Piece& piece : m_pieces) {
        const double off = deviation(from, piece.segment, first, piece.last);
        std::size_t ownEnd = own;
        while (ownEnd < m_own.size() && m_own[ownEnd].last <= piece.last)
            ++ownEnd;
        if (off <= m_options.tolerance + rounding) {
            result.push_back(piece);
            leadIns = piece.last < first ? leadIns + 1 : 0;
            m_deviation = std::max(m_deviation, off);
        } else {
            isRepaired = true;
            result.resize(result.size() - std::exchange(leadIns, 0));
            result.insert(result.end(), m_own.begin() + static_cast<std::ptrdiff_t>(own),
                          m_own.begin() + static_cast<std::ptrdiff_t>(ownEnd));
        }
        own = ownEnd;
        first = piece.last + 1;
        from = piece.segment.end;
    }
    m_pieces = std::move(result);
    settlePieces(m_pieces);
    makeReadable(m_pieces);
    return isRepaired;
}

} // namespace torvik
