// SPDX-License-Identifier: MIT
// When two circles are the same size, and which of a pen's hole sizes a circle belongs to. Radii
// are mm; differences are taken in single precision.
#pragma once

#include "base/numbers.h"
#include "job/records.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <utility>

namespace torvik {

// The set-up of a drawing and the blinking take circles up to the tolerance apart as one size.
inline bool isSameSize(float radius, float size) {
    return singleDistance(radius, size) <= radiusTolerance;
}

// The program drills at a size only the circles that lie within less than the tolerance of it; the
// picture shows the same.
inline bool isDrilledAt(float radius, float size) {
    return singleDistance(radius, size) < radiusTolerance;
}

// The part of a range, ascending by radius, that belongs to the radius by one of the two rules
// above.
template <typename Iterator, typename Rule, typename RadiusOf = std::identity>
std::pair<Iterator, Iterator> rangeOfSize(Iterator begin, Iterator end, float radius, Rule belongs,
                                          RadiusOf radiusOf = {}) {
    const Iterator first = std::partition_point(begin, end, [&](const auto& item) {
        return radiusOf(item) < radius && !belongs(radiusOf(item), radius);
    });
    return {first, std::partition_point(first, end, [&](const auto& item) {
                return radiusOf(item) <= radius || belongs(radiusOf(item), radius);
            })};
}

// The settings group of a hole size, 0 for the pen's own.
inline std::int16_t settingsOfSize(const Pen& pen, int size) {
    return static_cast<std::int16_t>(pen.intSettings + size);
}

// Calls visit(size) for the subscripts in sngRadii of all sizes at which the program drills the
// circle. One that lies between two sizes belongs to both and is drilled twice.
template <typename Visit>
void visitDrilledSizes(const Pen& pen, float radius, Visit visit) {
    const auto begin = pen.sngRadii.begin();
    const auto [first, last] = rangeOfSize(begin, pen.sngRadii.end(), radius, isDrilledAt);
    for (auto at = first; at != last; ++at)
        visit(static_cast<std::int16_t>(at - begin + 1));
}

} // namespace torvik
