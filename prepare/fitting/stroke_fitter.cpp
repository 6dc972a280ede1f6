// SPDX-License-Identifier: MIT
// Passes and measuring; arcs of one circle stand in stroke_fitter_circles.cpp.
#include "prepare/fitting/stroke_fitter.h"

#include "base/errors.h"
#include "prepare/arcs.h"
#include "prepare/fitting/chord_fit.h"
#include "prepare/fitting/flatten.h"
#include "prepare/fitting/grid.h"
#include "prepare/fitting/readable_arc.h"

#include <algorithm>
#include <array>
#include <utility>

namespace torvik {
namespace {

// How far a curve's chords may be from it, in parts of the tolerance.
constexpr double flattening = 0.02;

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
    m_points.reserve(m_stroke.segments.size() + 1);
    m_own.reserve(m_stroke.segments.size());
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
    ++m_report.curves;
    for (const Point& end : flattenCurve(start, curve, m_options.tolerance * flattening))
        addOwn(lineSegment(toGrid(end)));
    if (m_points.size() > m_options.pointLimit)
        throw RunTimeError("the curves of a stroke are too large for this tolerance");
}

void StrokeFitter::takeOwn(Point start, const Segment& segment) {
    if (isArc(segment) && isTooLarge(start, segment)) {
        for (const Segment& line : linesForArc(start, segment, m_options.tolerance / 2))
            addOwn(line);
        return;
    }
    if (isArc(segment))
        for (const double part : {0.25, 0.5, 0.75})
            m_points.push_back(pointOnArc(start, segment, part));
    addOwn(segment);
}

void StrokeFitter::addOwn(const Segment& segment) {
    m_points.push_back(segment.end);
    m_own.push_back({segment, m_points.size() - 1, 0});
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
        if (off <= m_options.tolerance + roundingSlack) {
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
