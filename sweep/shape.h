// SPDX-License-Identifier: MIT
// What a disc covers that moves along a line or an arc, row by row. mm. Exact: a place is covered
// where it lies no farther than the radius from the path.
#pragma once

#include "check/move.h"

#include <array>
#include <cstddef>

namespace torvik::sweep {

struct Span {
    double low;
    double high;

    bool isEmpty() const { return !(low <= high); }
};

class Shape {
public:
    // The places of the move must be known.
    Shape(const check::Move& move, double radius);

    static constexpr std::size_t mostSpans = 10;
    using Spans = std::array<Span, mostSpans>;

    // Fills in the spans at that height; they may meet. Says how many.
    std::size_t spansAt(double y, Spans& spans) const;

private:
    using Point = check::Point;

    // A sector of the ring, of less than half a turn, between two directions from the centre.
    struct Sector {
        Point from;
        Point to;
    };

    void setLine(const check::Move& move);
    void setArc(const check::Move& move);
    Span discAt(Point centre, double y) const;
    Span stripAt(double y) const;

    double m_radius;
    Point m_start;
    Point m_end;
    bool m_isArc;
    Point m_direction{0, 0}; // of a line, one long
    double m_length = 0;
    Point m_centre;
    double m_inner = 0; // of the ring
    double m_outer = 0;
    std::size_t m_sectorCount = 0;
    std::array<Sector, 4> m_sectors{};
};

} // namespace torvik::sweep
