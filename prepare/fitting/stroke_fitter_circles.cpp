// SPDX-License-Identifier: MIT
// The half of the fitting of a stroke that finds arcs of one circle and whole circles.
#include "prepare/arcs.h"
#include "prepare/fitting/circle_fit.h"
#include "prepare/fitting/grid.h"
#include "prepare/fitting/stroke_fitter.h"

#include <algorithm>
#include <utility>

namespace torvik {
namespace {

// An arc that ends where it began, to the tolerance, is a circle of more or less than a turn.
constexpr double leastTurn = 270;

double radiusOf(const Segment& arc) {
    return distance(arc.first, arc.end);
}

// Whether two arcs may belong to one circle: it would nowhere be farther off than `limit`.
bool areOnOneCircle(const Segment& a, const Segment& b, double limit) {
    return isArc(a) && isArc(b) && (a.sweep < 0) == (b.sweep < 0) &&
           distance(a.first, b.first) + std::fabs(radiusOf(a) - radiusOf(b)) <= limit;
}

} // namespace

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
    if (std::fabs(sweep) < leastTurn || std::fabs(sweep) > 2 * fullTurn - leastTurn)
        return false;
    return isCircleThroughOwnPoints(centre * (1 / sweep), radius / sweep);
}

bool StrokeFitter::isCircleThroughOwnPoints(Point centre, double radius) {
    double deviation = 0;
    for (const Point& point : m_points)
        deviation = std::max(deviation, std::fabs(distance(centre, point) - radius));
    if (deviation > m_options.tolerance + roundingSlack)
        return false;
    ++m_report.circles;
    m_report.largestDeviation = std::max(m_report.largestDeviation, deviation);
    m_stroke = circleStroke(m_stroke.pen, centre, radius);
    settle(m_stroke);
    return true;
}

} // namespace torvik
