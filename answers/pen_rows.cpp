// SPDX-License-Identifier: MIT
#include "answers/pen_rows.h"

namespace torvik {
namespace {

constexpr std::array<PenRow, penRowCount> cuttingRows{{
    {&Settings::sngSpindleSpeed, RowUnit::rpm},
    {&Settings::sngFeedHorizontal, RowUnit::feed},
    {&Settings::sngFeedVertical, RowUnit::feed},
    {&Settings::sngDepth, RowUnit::millimetres},
    {&Settings::sngDepthPerPass, RowUnit::millimetres},
    {&Settings::sngFinalPassDepth, RowUnit::millimetres, true},
    {&Settings::sngFeedFinalPass, RowUnit::feed},
}};

constexpr std::array<PenRow, 5> drillingRows{{
    {&Settings::sngSpindleSpeed, RowUnit::rpm},
    {&Settings::sngFeedVertical, RowUnit::feed}, // of the drill
    {&Settings::sngDepth, RowUnit::millimetres},
    {&Settings::sngDwell, RowUnit::seconds, true},
    {&Settings::sngDepthPerPass, RowUnit::millimetres},
}};

} // namespace

std::span<const PenRow> penRows(PenForm form) {
    if (form == PenForm::drilling)
        return drillingRows;
    return cuttingRows;
}

int feedDecimals(float feedFactor) {
    return feedFactor == 1.0F ? 0 : 2;
}

} // namespace torvik
