// SPDX-License-Identifier: MIT
// What must be answered for the whole job before its pages may be left: the heights above the work
// (mm) and the header's lines. Texts are read leniently: the leading number, else 0.
#pragma once

#include "job/job.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace torvik {

// The heights in the order of their page: tool change, safe, rapid down.
inline constexpr std::array<float Answers::*, 3> heightFields{
    &Answers::gsngToolChangeHeight, &Answers::gsngSafeHeight, &Answers::gsngRapidDownTo};
using HeightTexts = std::array<std::string, heightFields.size()>;

// Stores the heights; one too large for its field stays as it was.
void storeHeights(const HeightTexts& texts, Answers& answers);

struct HeightFault {
    enum class Kind { zero, tooLarge, notNumber };

    std::size_t height; // subscript of heightFields
    Kind kind;
};

// The first height that may not stand.
std::optional<HeightFault> heightFault(const HeightTexts& texts);

// The units of the feeds: mm per minute or mm per second.
void chooseFeedUnits(bool isMinute, Answers& answers);
bool isPerMinute(const Answers& answers);

inline constexpr std::size_t headerLines = 9;
using HeaderTexts = std::array<std::string, headerLines>;

// Whether the header's line must be filled: the date, the designer, the name of the part and the
// material.
bool isHeaderLineNeeded(std::size_t line);
// Takes the blanks before and behind the lines away, as they are written and saved.
void trimHeader(Answers& answers);
// The first needed line that holds nothing but blanks.
std::optional<std::size_t> missingHeaderLine(const HeaderTexts& texts);

} // namespace torvik
