// SPDX-License-Identifier: MIT
// The workshop's tools and the tool types that its users added, in memory.
#pragma once

#include "base/arrays.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace torvik {

struct Tool {
    std::int16_t intNumber = 0; // on the tool holder, unique within the list
    std::string strType;
    float sngDiameter = 0;               // mm
    float sngReserved = newToolReserved; // kept for the other programs that share the list

    static constexpr float newToolReserved = -2000;
};

// A settings group refers to its tool by the place in gudtTools, from 1. gintToolCount can be more
// than the places that hold a tool, where the loading met a record that it could not read; such a
// place raises SubscriptOutOfRange.
struct ToolList {
    OneBasedArray<Tool> gudtTools;
    std::int16_t gintToolCount = 0;
    OneBasedArray<std::string> gstrUserToolTypes;
    std::int16_t gintUserToolTypeCount = 0;
};

// The types that every workshop has, in the order of every list.
inline constexpr std::array<std::string_view, 7> standardToolTypes{
    "Ball end", "Bull nose", "Drill", "End mill", "Reamer", "Router cutter", "Slot drill"};

// How many places can be read: fewer than gintToolCount where the loading broke off, none for a
// damaged count below 0.
std::int16_t loadedToolCount(const ToolList& tools);

// Whether a tool stands at the place; a place behind the list's end holds none.
bool isInList(const ToolList& tools, std::int16_t place);

// The place of the first tool with that number, or 0; 0 for the number 0, which no tool has.
std::int16_t intToolGetId(const ToolList& tools, std::int16_t number);

// The tool at a place, 1 to gintToolCount. Raises SubscriptOutOfRange for any other place, 0 (no
// tool chosen) included.
const Tool& toolAt(const ToolList& tools, std::int16_t place);

} // namespace torvik
