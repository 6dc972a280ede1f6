// SPDX-License-Identifier: MIT
// Finds the strokes whose ends are near a place: a tree over all ends, parted in X and Y by turns.
#pragma once

#include "prepare/strokes.h"

#include <cstddef>
#include <span>
#include <vector>

namespace torvik {

// One end of a stroke.
struct StrokeEnd {
    std::size_t stroke = 0;
    bool isStart = true;
};

// Where a stroke begins and ends.
struct Ends {
    Point start;
    Point end;
};

class StrokeFinder {
public:
    explicit StrokeFinder(std::span<const Ends> strokes);

    // Takes a stroke out.
    void remove(std::size_t stroke);
    // The ends nearest to a place among the strokes that are left, at most `count`, nearest first.
    std::vector<StrokeEnd> nearest(Point place, std::size_t count) const;

private:
    // A part of the ends: its middle one parts the others.
    struct Part {
        std::size_t first;
        std::size_t last; // not included
        bool byX;

        std::size_t middle() const { return first + (last - first) / 2; }
        bool empty() const { return first == last; }
        Part below() const { return {first, middle(), !byX}; }
        Part above() const { return {middle() + 1, last, !byX}; }
    };
    struct Found {
        double distance;
        StrokeEnd end;
    };

    Part all() const { return {0, m_ends.size(), true}; }
    Point placeOf(const StrokeEnd& end) const {
        return end.isStart ? m_strokes[end.stroke].start : m_strokes[end.stroke].end;
    }
    void build(const Part& part);
    void removeEnd(std::size_t place);
    void search(const Part& part, Point place, std::size_t count, std::vector<Found>& found) const;

    std::span<const Ends> m_strokes;
    std::vector<StrokeEnd> m_ends;
    std::vector<bool> m_isLeft;         // of the end at a place of the tree
    std::vector<std::size_t> m_left;    // ends left in the part with this middle
    std::vector<std::size_t> m_placeOf; // of each stroke's start and end in the tree
};

} // namespace torvik
