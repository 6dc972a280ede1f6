// SPDX-License-Identifier: MIT
#include "answers/pen_rows.h"

namespace torvik {
namespace {

constexpr std::array<PenRow, penRowCount> cuttingRows{{
    {"Spindle Speed", RowUnit::rpm, 80, &Settings::sngSpindleSpeed, false,
     "How many turns the spindle makes in a minute"},
    {"Horizontal Feed Rate for Cutting", RowUnit::feed, 90, &Settings::sngFeedHorizontal, false,
     "How fast the tool moves along the lines"},
    {"Vertical Feed Rate into Material", RowUnit::feed, 100, &Settings::sngFeedVertical, false,
     "How fast the tool moves down into the material; a quarter of the cutting feed is usual"},
    {"Final Depth", RowUnit::millimetres, 110, &Settings::sngDepth, false,
     "How deep the finished cut is below the surface"},
    {"Maximum Depth per Pass", RowUnit::millimetres, 120, &Settings::sngDepthPerPass, false,
     "How much the tool takes off at most each time it goes round"},
    {"Final Pass Depth of Cut", RowUnit::millimetres, 242, &Settings::sngFinalPassDepth, true,
     "How much is left for a last, light pass; 0 for no such pass"},
    {"Final Pass Horizontal Feed Rate", RowUnit::feed, 244, &Settings::sngFeedFinalPass, false,
     "How fast the tool moves along the lines in the last pass"},
}};

constexpr std::array<PenRow, 5> drillingRows{{
    {"Spindle Speed", RowUnit::rpm, 80, &Settings::sngSpindleSpeed, false,
     "How many turns the spindle makes in a minute"},
    {"Drilling Feed Rate", RowUnit::feed, 95, &Settings::sngFeedVertical, false,
     "How fast the drill moves down into the material"},
    {"Depth of Hole", RowUnit::millimetres, 105, &Settings::sngDepth, false,
     "How deep the finished hole is below the surface"},
    {"Dwell Time", RowUnit::seconds, 115, &Settings::sngDwell, true,
     "How long the drill turns at the bottom of the hole; 0 for no wait"},
    {"Peck Distance", RowUnit::millimetres, 125, &Settings::sngDepthPerPass, false,
     "How much deeper the drill goes with each peck"},
}};

} // namespace

std::span<const PenRow> penRows(PenForm form) {
    if (form == PenForm::drilling)
        return drillingRows;
    return cuttingRows;
}

std::string rowUnit(const PenRow& row, std::string_view feedUnits) {
    switch (row.unit) {
    case RowUnit::rpm:
        return "rpm";
    case RowUnit::millimetres:
        return "mm";
    case RowUnit::seconds:
        return "s";
    case RowUnit::feed:
        break;
    }
    if (feedUnits.size() >= 2 && feedUnits.front() == '(' && feedUnits.back() == ')')
        feedUnits = feedUnits.substr(1, feedUnits.size() - 2);
    return std::string(feedUnits);
}

std::string rowCaption(const PenRow& row, std::string_view feedUnits) {
    return std::string(row.name) + " " +
           (row.unit == RowUnit::feed ? std::string(feedUnits) : "(" + rowUnit(row, {}) + ")");
}

int feedDecimals(float feedFactor) {
    return feedFactor == 1.0F ? 0 : 2;
}

} // namespace torvik
