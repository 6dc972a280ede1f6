// SPDX-License-Identifier: MIT
// Reading numbers from text and storing them in the job's fields. Nothing depends on the locale.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

namespace torvik {

// The number at the start of the text, else 0. Blanks and tabs before it are skipped; one sign,
// digits, one point, and an exponent letter E or D (either case) that digits follow are read.
// Raises Overflow where the number does not fit a double.
double leadingNumber(std::string_view text);

// Whether the text is nothing but a number: a sign, digits with one point, an exponent.
bool isNumber(std::string_view text);

// Rounds half to even; raises Overflow outside -32768 to 32767.
std::int16_t toInt16(double value);

[[noreturn]] void raiseSingleOverflow();

// Rounds to IEEE single; raises Overflow where the value does not fit (also for what is no number).
inline float toSingle(double value) {
    const auto single = static_cast<float>(value);
    if (!(std::fabs(single) <= std::numeric_limits<float>::max()))
        raiseSingleOverflow();
    return single;
}

// |a - b|, the difference rounded to single as the tolerances of positions and radii ask for it.
inline float singleDistance(float a, float b) {
    return std::fabs(a - b);
}

inline constexpr double positionTolerance = 0.001; // mm
inline constexpr double radiusTolerance = 0.01;    // mm

// Whether two points are the same place, in X and in Y alike.
inline bool isSamePosition(float x1, float y1, float x2, float y2) {
    return singleDistance(x1, x2) <= positionTolerance &&
           singleDistance(y1, y2) <= positionTolerance;
}

} // namespace torvik
