// SPDX-License-Identifier: MIT
#include "prepare/dxf/curve_through.h"

#include <algorithm>
#include <limits>
#include <span>

namespace torvik::dxf {
namespace {

// The parameter along the curve is the length of the chords.
class Slopes {
public:
    explicit Slopes(std::span<const Point> points) : m_points(points), m_rows(points.size()) {}

    std::vector<Point> solve(std::optional<Point> leaving, std::optional<Point> arriving) {
        const std::size_t last = m_points.size() - 1;
        m_rows.front() = endRow(leaving, 0);
        m_rows.back() = endRow(arriving, last - 1);
        std::swap(m_rows.back().before, m_rows.back().after);
        for (std::size_t i = 1; i < last; ++i) {
            const double back = chord(i - 1);
            const double on = chord(i);
            m_rows[i] = {on, 2 * (back + on), back, (slope(i - 1) * on + slope(i) * back) * 3.0};
        }
        return eliminated();
    }

private:
    // before · m(i−1) + here · m(i) + after · m(i+1) = sum
    struct Row {
        double before = 0;
        double here = 1;
        double after = 0;
        Point sum;
    };

    double chord(std::size_t i) const { return distance(m_points[i], m_points[i + 1]); }
    Point slope(std::size_t i) const { return (m_points[i + 1] - m_points[i]) * (1 / chord(i)); }

    Row endRow(std::optional<Point> direction, std::size_t i) const {
        if (direction && length(*direction) > 0)
            return {0, 1, 0, *direction * (1 / length(*direction))};
        return {0, 2, 1, slope(i) * 3};
    }

    std::vector<Point> eliminated() {
        for (std::size_t i = 1; i < m_rows.size(); ++i) {
            const double factor = m_rows[i].before / m_rows[i - 1].here;
            m_rows[i].here -= factor * m_rows[i - 1].after;
            m_rows[i].sum = m_rows[i].sum - m_rows[i - 1].sum * factor;
        }
        std::vector<Point> slopes(m_rows.size());
        for (std::size_t i = m_rows.size(); i-- > 0;) {
            const Point known = i + 1 < m_rows.size() ? slopes[i + 1] * m_rows[i].after : Point{};
            slopes[i] = (m_rows[i].sum - known) * (1 / m_rows[i].here);
        }
        return slopes;
    }

    std::span<const Point> m_points;
    std::vector<Row> m_rows;
};

} // namespace

Stroke curveThrough(const std::vector<Point>& points, bool isClosed, std::optional<Point> leaving,
                    std::optional<Point> arriving) {
    // How far a closed curve is laid on beyond its ends; what is further away hardly bends them.
    constexpr std::size_t wrapped = 12;
    std::vector<Point> places = points;
    places.erase(std::unique(places.begin(), places.end()), places.end());
    if (isClosed && places.size() > 1 && places.front() == places.back())
        places.pop_back();
    if (places.empty())
        return {1, Point{1, 1} * std::numeric_limits<double>::quiet_NaN(), {}};
    if (places.size() < 2)
        return {1, places.front(), {}};
    const std::size_t count = places.size();
    std::size_t first = 0;
    std::size_t pieces = count - 1;
    if (isClosed && count > 2) {
        first = wrapped;
        pieces = count;
        std::vector<Point> round;
        round.reserve(count + 2 * wrapped);
        for (std::size_t i = 0; i < count + 2 * wrapped; ++i)
            round.push_back(places[(i + count * wrapped - wrapped) % count]);
        places = std::move(round);
        leaving.reset();
        arriving.reset();
    }
    const std::vector<Point> slopes = Slopes(places).solve(leaving, arriving);
    Stroke stroke{1, places[first], {}};
    stroke.segments.reserve(pieces);
    for (std::size_t i = first; i < first + pieces; ++i) {
        const double third = distance(places[i], places[i + 1]) / 3;
        stroke.segments.push_back(curveSegment(
            places[i] + slopes[i] * third, places[i + 1] - slopes[i + 1] * third, places[i + 1]));
    }
    return stroke;
}

} // namespace torvik::dxf
