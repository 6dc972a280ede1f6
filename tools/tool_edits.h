// SPDX-License-Identifier: MIT
// Changes to the lists of tools and of the users' types, in memory. Places count from 1.
#pragma once

#include "tools/tool_list.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace torvik {

// Puts the tool behind the last one. Raises Overflow for more than 32767 tools.
void addTool(ToolList& tools, Tool tool);
// Takes the tool at the place, 1 to gintToolCount, out; later ones move down by one place and the
// array keeps its size. Raises SubscriptOutOfRange for another place.
void deleteTool(ToolList& tools, std::int16_t place);

// Whether a tool of the list has exactly this type.
bool isTypeInUse(const ToolList& tools, std::string_view type);
// Puts the type behind the last of the users' types. Raises Overflow for more than 32767 types.
void addUserType(ToolList& tools, std::string type);
// Takes the users' type at the place out; later ones move down by one place, the array keeps its
// size. A place that earlier deletions left beyond the end only shortens the list; place 0 or less
// raises SubscriptOutOfRange.
void deleteUserType(ToolList& tools, std::int16_t place);

} // namespace torvik
