// SPDX-License-Identifier: MIT
// The form in which strokes can be written: coordinates and sweeps are whole ten-thousandths, and
// an arc ends where its centre and sweep say. Strokes are brought into this form before and after
// each fitting, so that a prepared drawing read again gives the very same numbers.
#pragma once

#include "prepare/strokes.h"

namespace torvik {

// The nearest ten-thousandth, half to even.
inline double toGrid(double value) {
    constexpr double perUnit = 10000;
    constexpr double most = 2251799813685248; // 2^51
    const double scaled = value * perUnit;
    // A sum that stands three times as high has no room for halves: it is rounded as
    // std::nearbyint rounds, and without a call.
    const double whole =
        std::fabs(scaled) < most ? scaled + 3 * most - 3 * most : std::nearbyint(scaled);
    return whole / perUnit + 0.0; // no minus zero
}
inline Point toGrid(Point point) {
    return {toGrid(point.x), toGrid(point.y)};
}

// An arc from `start` with the sweep rounded, its centre chosen so that it ends as close to the
// target as can be. A line where nothing of the sweep is left.
Segment gridArc(Point start, Point target, double sweep);

// A segment in written form, from a start that is written already. A line of no length may come
// out. Curves keep their control points.
Segment gridSegment(Point start, const Segment& segment);

// The whole stroke in written form. Lines of no length go; nothing may be left of a tiny stroke.
void settle(Stroke& stroke);

} // namespace torvik
