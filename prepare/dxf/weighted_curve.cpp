// SPDX-License-Identifier: MIT
#include "prepare/dxf/weighted_curve.h"

#include "prepare/dxf/curve_piece.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace torvik::dxf {
namespace {

constexpr std::size_t highestDegree = 25;

bool belongTogether(const WeightedCurve& curve) {
    const std::size_t controls = curve.controls.size();
    return curve.degree >= 1 && curve.degree <= highestDegree && controls > curve.degree &&
           curve.knots.size() == controls + curve.degree + 1 &&
           std::is_sorted(curve.knots.begin(), curve.knots.end()) &&
           std::all_of(curve.controls.begin(), curve.controls.end(),
                       [](const ControlPoint& point) { return point.weight > 0; });
}

// Pieces between knots by the blossom of the spline: control point j of a piece from knot a to
// knot b is the spline's polar form of the arguments a, …, a, b, …, b with j times b.
class Pieces {
public:
    explicit Pieces(const WeightedCurve& curve)
        : m_degree(curve.degree), m_knots(curve.knots), m_work(curve.degree + 1) {
        m_points.reserve(curve.controls.size());
        for (const ControlPoint& control : curve.controls)
            m_points.push_back({control.place * control.weight, control.weight});
    }

    std::vector<Weighted> from(std::size_t knot) {
        std::vector<Weighted> piece;
        piece.reserve(m_degree + 1);
        for (std::size_t j = 0; j <= m_degree; ++j)
            piece.push_back(blossom(knot, j));
        return piece;
    }

private:
    Weighted blossom(std::size_t knot, std::size_t ofEnd) {
        for (std::size_t j = 0; j <= m_degree; ++j)
            m_work[j] = m_points[knot - m_degree + j];
        for (std::size_t round = 1; round <= m_degree; ++round) {
            const double at = round <= ofEnd ? m_knots[knot + 1] : m_knots[knot];
            for (std::size_t j = m_degree; j >= round; --j) {
                const double low = m_knots[knot - m_degree + j];
                const double high = m_knots[knot + 1 + j - round];
                m_work[j] = between(m_work[j - 1], m_work[j], (at - low) / (high - low));
            }
        }
        return m_work[m_degree];
    }

    std::size_t m_degree;
    const std::vector<double>& m_knots;
    std::vector<Weighted> m_points;
    std::vector<Weighted> m_work;
};

// A hundred-thousandth of what the control points span.
double toleranceOf(const WeightedCurve& curve) {
    constexpr double share = 1e-5;
    StrokeExtents extents;
    for (const ControlPoint& control : curve.controls)
        extents.include(control.place);
    return distance(extents.low, extents.high) * share;
}

} // namespace

Stroke strokeOf(const WeightedCurve& curve) {
    constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
    Stroke stroke{1, {noNumber, noNumber}, {}};
    if (!belongTogether(curve))
        return stroke;
    // Enough for every curve that is drawn; only a made-up one would be halved without end.
    constexpr std::size_t halvingsOfEach = 8;
    constexpr std::size_t halvingsMore = 64;
    std::size_t halvings = halvingsMore + halvingsOfEach * curve.controls.size();
    const double tolerance = toleranceOf(curve);
    Pieces pieces(curve);
    bool isFirst = true;
    for (std::size_t knot = curve.degree; knot < curve.controls.size(); ++knot) {
        if (!(curve.knots[knot] < curve.knots[knot + 1]))
            continue;
        const std::vector<Weighted> piece = pieces.from(knot);
        if (isFirst)
            stroke.start = piece.front().place();
        isFirst = false;
        appendPiece(stroke.segments, piece, tolerance, halvings);
    }
    return stroke;
}

} // namespace torvik::dxf
