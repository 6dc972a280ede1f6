// SPDX-License-Identifier: MIT
// The workshop's tools and the tool types that its users added, in memory.
#pragma once

#include "base/arrays.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace torvik {

struct Tool {
    std::int16_t intNumber = 0; // on the tool holder, unique within the list
    std::string strType;
    float sngDiameter = 0;               // mm
    float sngReserved = newToolReserved; // kept for the other programs that share the list
    // What is stored in this place, where it is no record of a tool; the other fields say nothing.
    std::optional<std::string> strUnreadable{};

    static constexpr float newToolReserved = -2000;
};

// A settings group refers to its tool by the place in gudtTools, from 1. A place whose record could
// not be read holds no tool, but keeps its record.
struct ToolList {
    OneBasedArray<Tool> gudtTools;
    std::int16_t gintToolCount = 0;
    OneBasedArray<std::string> gstrUserToolTypes;
    std::int16_t gintUserToolTypeCount = 0;

    // What was stored when it was last read or saved: the records by tool, and the types. It tells
    // our changes from those of another copy of the program.
    std::map<std::string, std::string> storedTools{};
    std::set<std::string> storedTypes{};
    // Whether the last saving failed.
    bool toolsUnsaved = false;
    bool typesUnsaved = false;
};

// The types that every workshop has, in the order of every list.
inline constexpr std::array<std::string_view, 7> standardToolTypes{
    "Ball end", "Bull nose", "Drill", "End mill", "Reamer", "Router cutter", "Slot drill"};

// Whether a tool stands at the place. A place behind the list's end, or with a record that could
// not be read, holds none.
bool isInList(const ToolList& tools, std::int16_t place);

// The tool at the place, nullptr where none stands there.
const Tool* findTool(const ToolList& tools, std::int16_t place);

// The place of the first tool with that number, or 0; 0 for the number 0, which no tool has.
std::int16_t intToolGetId(const ToolList& tools, std::int16_t number);

// The tool at a place, 1 to gintToolCount. Raises SubscriptOutOfRange for any other place, 0 (no
// tool chosen) included, and InvalidCall where the record could not be read.
const Tool& toolAt(const ToolList& tools, std::int16_t place);

} // namespace torvik
