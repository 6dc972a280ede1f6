// SPDX-License-Identifier: MIT
#include "prepare/placing/order.h"

#include "prepare/placing/stroke_finder.h"

#include <algorithm>
#include <utility>

namespace torvik {
namespace {

constexpr std::size_t neighbourCount = 10; // of each end

// The way of one pen: which stroke comes when, and which way round it is drawn.
class Way {
public:
    Way(std::span<const Stroke> strokes, Point from) : m_from(from) {
        m_ends.reserve(strokes.size());
        for (const Stroke& stroke : strokes)
            m_ends.push_back({stroke.start, stroke.end()});
        m_order.reserve(strokes.size());
        for (std::size_t i = 0; i < strokes.size(); ++i)
            m_order.push_back({i, true});
    }

    // Always on to the nearest end.
    void goToNearest() {
        StrokeFinder finder(m_ends);
        Point place = m_from;
        for (StrokeEnd& next : m_order) {
            next = finder.nearest(place, 1).front();
            finder.remove(next.stroke);
            place = endOf(next);
        }
    }

    // Turns parts of the way round where that makes it shorter, looking at near strokes only.
    void exchange(const std::stop_token& stop) {
        findNeighbours();
        m_place.resize(m_order.size());
        for (std::size_t i = 0; i < m_order.size(); ++i)
            m_place[m_order[i].stroke] = i;
        std::vector<std::size_t> open(m_order.size());
        for (std::size_t i = 0; i < open.size(); ++i)
            open[i] = m_order[open.size() - 1 - i].stroke;
        // Every exchange wins something, so it comes to an end; the count keeps it to a time.
        std::size_t left = 40 * m_order.size();
        std::vector<bool> isOpen(m_order.size(), true);
        while (!open.empty() && left > 0 && !stop.stop_requested()) {
            const std::size_t stroke = open.back();
            open.pop_back();
            isOpen[stroke] = false;
            --left;
            if (!improveAt(stroke))
                continue;
            isOpen[stroke] = true;
            open.push_back(stroke);
            for (const std::size_t neighbour : m_neighbours[stroke])
                if (!isOpen[neighbour]) {
                    isOpen[neighbour] = true;
                    open.push_back(neighbour);
                }
        }
    }

    double length() const {
        double sum = 0;
        Point place = m_from;
        for (const StrokeEnd& next : m_order) {
            sum += distance(place, startOf(next));
            place = endOf(next);
        }
        return sum;
    }

    std::span<const StrokeEnd> order() const { return m_order; }

private:
    Point startOf(const StrokeEnd& s) const {
        return s.isStart ? m_ends[s.stroke].start : m_ends[s.stroke].end;
    }
    Point endOf(const StrokeEnd& s) const {
        return s.isStart ? m_ends[s.stroke].end : m_ends[s.stroke].start;
    }
    Point endBefore(std::size_t i) const { return i == 0 ? m_from : endOf(m_order[i - 1]); }

    void findNeighbours() {
        const StrokeFinder finder(m_ends);
        m_neighbours.resize(m_ends.size());
        for (std::size_t i = 0; i < m_ends.size(); ++i)
            for (const Point& place : {m_ends[i].start, m_ends[i].end})
                for (const StrokeEnd& end : finder.nearest(place, neighbourCount))
                    if (end.stroke != i)
                        m_neighbours[i].push_back(end.stroke);
    }

    bool improveAt(std::size_t stroke) {
        for (const std::size_t neighbour : m_neighbours[stroke]) {
            const std::size_t first = std::min(m_place[stroke], m_place[neighbour]);
            const std::size_t last = std::max(m_place[stroke], m_place[neighbour]);
            // From the end of the earlier to the end of the later, or start to start.
            if (turnRound(first + 1, last) || turnRound(first, last - 1))
                return true;
        }
        return turnRound(m_place[stroke], m_place[stroke]);
    }

    // Draws the strokes of a part of the way in opposite order and direction where it is shorter.
    bool turnRound(std::size_t first, std::size_t last) {
        const Point before = endBefore(first);
        const Point start = startOf(m_order[first]);
        const Point end = endOf(m_order[last]);
        double won = distance(before, start) - distance(before, end);
        if (last + 1 < m_order.size()) {
            const Point after = startOf(m_order[last + 1]);
            won += distance(end, after) - distance(start, after);
        }
        constexpr double worthIt = 1e-6;
        if (won <= worthIt)
            return false;
        std::reverse(m_order.begin() + static_cast<std::ptrdiff_t>(first),
                     m_order.begin() + static_cast<std::ptrdiff_t>(last) + 1);
        for (std::size_t i = first; i <= last; ++i) {
            m_order[i].isStart = !m_order[i].isStart;
            m_place[m_order[i].stroke] = i;
        }
        return true;
    }

    Point m_from;
    std::vector<Ends> m_ends;
    std::vector<StrokeEnd> m_order;   // by which end each stroke begins
    std::vector<std::size_t> m_place; // of each stroke in the order
    std::vector<std::vector<std::size_t>> m_neighbours;
};

// Makes the way shorter where that can be done; false where it stays as it is.
bool shorten(std::span<Stroke> strokes, Point from, const std::stop_token& stop) {
    constexpr double clearly = 0.999;
    Way way(strokes, from);
    const double before = way.length();
    way.goToNearest();
    way.exchange(stop);
    if (way.length() > before * clearly)
        return false;
    std::vector<Stroke> result;
    result.reserve(strokes.size());
    for (const StrokeEnd& next : way.order()) {
        Stroke& stroke = strokes[next.stroke];
        result.push_back(next.isStart ? std::move(stroke) : reversed(stroke));
    }
    std::move(result.begin(), result.end(), strokes.begin());
    return true;
}

} // namespace

void sortByPen(std::vector<Stroke>& strokes) {
    std::stable_sort(strokes.begin(), strokes.end(),
                     [](const Stroke& a, const Stroke& b) { return a.pen < b.pen; });
}

void orderStrokes(std::vector<Stroke>& strokes, const std::stop_token& stop) {
    sortByPen(strokes);
    Point from;
    for (auto first = strokes.begin(); first != strokes.end();) {
        const auto last = std::find_if(first, strokes.end(),
                                       [&](const Stroke& s) { return s.pen != first->pen; });
        // Among ways of one length chance decides, so another round may find a shorter one.
        constexpr int mostRounds = 5;
        for (int i = 0; i < mostRounds && !stop.stop_requested(); ++i)
            if (!shorten({first, last}, from, stop))
                break;
        from = (last - 1)->end();
        first = last;
    }
}

double airLength(std::span<const Stroke> strokes) {
    double sum = 0;
    Point place;
    for (const Stroke& stroke : strokes) {
        sum += distance(place, stroke.start);
        place = stroke.end();
    }
    return sum;
}

} // namespace torvik
