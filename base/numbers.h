// SPDX-License-Identifier: MIT
// Reading numbers from text and storing them in the job's fields. Nothing depends on the locale.
#pragma once

#include "base/digits.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

namespace torvik {

// The number at the start of the text, else 0. Blanks and tabs before it are skipped; one sign,
// digits, one point, and an exponent letter E or D (either case) that digits follow are read.
// Raises Overflow where the number does not fit a double.
double leadingNumber(std::string_view text);

// Whether the text is nothing but a number: a sign, digits with one point, an exponent.
bool isNumber(std::string_view text);

// The value of a text that is nothing but a whole number with at most one minus and 15 digits, as
// most numbers of a drawing are; of others nothing, be they numbers or none.
inline std::optional<double> plainNumber(std::string_view text) {
    constexpr std::size_t mostDigits = 15; // a double holds them all
    const bool negative = text.starts_with('-');
    if (negative)
        text.remove_prefix(1);
    if (text.empty() || text.size() > mostDigits)
        return std::nullopt;
    std::int64_t value = 0;
    for (const char digit : text) {
        if (!isDigit(digit))
            return std::nullopt;
        value = value * 10 + (digit - '0');
    }
    const auto size = static_cast<double>(value);
    return negative ? -size : size;
}

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
