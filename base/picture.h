// SPDX-License-Identifier: MIT
// Picture formats: numbers as text with a fixed count of decimals ("0" to "0.000"), with leading
// zeros ("00", "0000") and the general number. They round half away from zero on the exact binary
// value, never show a minus sign at zero, and use the point whatever the locale. All of them raise
// Overflow for what is no finite number.
#pragma once

#include <string>

namespace torvik {

// The longest text that putFixed can write: a double's 309 digits, sign, point and decimals.
inline constexpr int maxFixedLength = 330;

// Writes the value with 0 to 3 decimals at `out`, which has room for maxFixedLength characters,
// and returns the end of the text.
char* putFixed(char* out, double value, int decimals);
// The same for a whole number.
char* putInteger(char* out, long value);

// "0", "0.0", "0.00", "0.000": the value with 0 to 3 decimals.
std::string formatFixed(double value, int decimals);
// "00", "0000": a whole number with at least `digits` digits.
std::string formatInteger(long value, int digits = 1);
// The general number: the shortest plain decimal form that reads back to the same single.
std::string formatGeneral(float value);

} // namespace torvik
