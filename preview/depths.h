// SPDX-License-Identifier: MIT
// The depths of a piece, in mm, and the colours that lines and depths are shown in. Colours are
// 0x00BBGGRR.
#pragma once

#include "base/arrays.h"

#include <cstdint>
#include <string>

namespace torvik {

struct Answers;

inline constexpr std::int32_t whiteColour = 0xFFFFFF;

// The distinct depths of the piece, ascending.
struct DepthList {
    OneBasedArray<float> gsngDepths;
    std::int16_t gintDepthCount = 0;
};

// Puts the depth in its place; one that is there already is not put twice.
void SaveDepth(DepthList& depths, float depth);

// The grey of a depth: 208 for the shallowest down to 16 for the deepest, half to even; light grey
// where all depths are the same. Raises Overflow where the depth lies far outside the range.
std::int32_t lngPlotColour(float depth, float shallowest, float deepest);

// A pen's own colour. Raises SubscriptOutOfRange for a pen outside 1 to 8.
std::int32_t lngPenColour(const Answers& answers, std::int16_t pen);

// A depth as the legend says it: "2.50 mm".
std::string depthText(float depth);

} // namespace torvik
