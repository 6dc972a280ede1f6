// SPDX-License-Identifier: MIT
// The rows of a pen page as one table for each of its two forms: which field of the settings group
// a row holds and how its number is shown. Lengths are mm, speeds rpm, times s;
// feeds are stored in mm/min and shown divided by the job's feed factor.
#pragma once

#include "job/records.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>

namespace torvik {

inline constexpr std::size_t penRowCount = 7;

enum class PenForm { cutting, drilling };

// The unit of a row decides its format too: rpm are shown as general numbers, feeds with
// feedDecimals, the others with two decimals.
enum class RowUnit { rpm, feed, millimetres, seconds };

struct PenRow {
    float Settings::*field;
    RowUnit unit;
    bool mayBeZero = false;
};

// Rows that the rules call by number, of the cutting form ...
inline constexpr std::size_t rowFeed = 1;
inline constexpr std::size_t rowFeedVertical = 2;
inline constexpr std::size_t rowDepth = 3;
inline constexpr std::size_t rowPass = 4;
inline constexpr std::size_t rowFinalPass = 5;
inline constexpr std::size_t rowFinalPassFeed = 6;
// ... and of the drilling form.
inline constexpr std::size_t rowHoleDepth = 2;
inline constexpr std::size_t rowDwell = 3;
inline constexpr std::size_t rowPeck = 4;

// Row 0 first: seven rows to cut, five to drill.
std::span<const PenRow> penRows(PenForm form);

// Decimals of a feed: none in mm/min (factor 1), two in mm/sec.
int feedDecimals(float feedFactor);

// A box's texts, row by row.
using PenTexts = std::array<std::string, penRowCount>;

} // namespace torvik
