// SPDX-License-Identifier: MIT
#include "preview/depths.h"

#include "base/numbers.h"
#include "base/picture.h"
#include "job/job.h"

#include <algorithm>

namespace torvik {
namespace {

constexpr std::int32_t lightGrey = 0xC0C0C0;
constexpr double shallowestGrey = 208;
constexpr double greyRange = 192;

} // namespace

void SaveDepth(DepthList& depths, float depth) {
    auto& list = depths.gsngDepths;
    const auto place = std::lower_bound(list.begin(), list.end(), depth);
    if (place != list.end() && *place == depth)
        return;
    list.insert(place - list.begin() + 1, depth);
    ++depths.gintDepthCount;
}

std::int32_t lngPlotColour(float depth, float shallowest, float deepest) {
    if (deepest == shallowest)
        return lightGrey;
    const double share = (double{depth} - shallowest) / (double{deepest} - shallowest);
    return toInt16(shallowestGrey - share * greyRange) * 0x010101;
}

std::int32_t lngPenColour(const Answers& answers, std::int16_t pen) {
    return answers.gudtPens[pen].lngColour;
}

std::string depthText(float depth) {
    return formatFixed(depth, 2) + " mm";
}

} // namespace torvik
