// SPDX-License-Identifier: MIT
// The stored form of a tool: number|type|diameter|reserved, the two last with three decimals (mm).
// Refuses a text without its three "|" and numbers that the fields cannot hold.
#pragma once

#include "tools/tool_entry.h"

#include <string>
#include <string_view>

namespace torvik {

// Numbers are leading numbers, the type is taken as it is, a "|" in it shifts the fields. Raises
// RunTimeError.
Tool toolOfRecord(std::string_view record);

// The tool's record; that of a place that could not be read is the text found there.
std::string recordOf(const Tool& tool);

// The tool as texts to be edited; of a record that could not be read, the fields that it has.
ToolEntry entryOf(const Tool& tool);

} // namespace torvik
