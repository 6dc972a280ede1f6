// SPDX-License-Identifier: MIT
// A tool as the user typed it, and whether it can join the list: its number and its pair of type
// and diameter are each unique there. Lengths in millimetres. Refuses what cannot be stored.
#pragma once

#include "tools/tool_list.h"

#include <cstdint>
#include <optional>
#include <string>

namespace torvik {

struct ToolEntry {
    std::string number;
    std::string type; // empty: none chosen
    std::string diameter;
};

// Whether the entry says enough to be checked: a number above 0, a type and some diameter.
bool isToolComplete(const ToolEntry& entry);

// Why an entry is refused.
enum class ToolFault {
    numberTooLarge,
    numberNotWhole,
    numberTaken,
    diameterNotNumber,
    diameterTooLarge,
    diameterNegative,
    sameTool,     // another tool has this type and diameter
    recordTooLong // type and diameter together
};

// The first fault of the entry beside every tool but the one at ownPlace (0: a new tool).
std::optional<ToolFault> toolFault(const ToolList& tools, const ToolEntry& entry,
                                   std::int16_t ownPlace);

// The tool that an entry without fault describes; raises Overflow for one that cannot be stored.
Tool toolOf(const ToolEntry& entry, float reserved = Tool::newToolReserved);

} // namespace torvik
