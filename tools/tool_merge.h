// SPDX-License-Identifier: MIT
// Two copies of the program that change the list: what another copy stored since our reading comes
// into our list before it is saved. Tools are the same tool where their numbers are.
#pragma once

#include "tools/tool_list.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace torvik {

// The records of a list by tool; of two alike the first.
std::map<std::string, std::string> recordsByTool(const OneBasedArray<Tool>& tools);

// Takes over the tools that `stored` has and storedTools has not, or has otherwise. Our places stay
// what they are: new tools come last, or into a place that could not be read before. Answers the
// numbers of the tools that we changed or deleted, too, and which stay as we have them. A tool that
// another copy deleted stays in our list.
std::vector<std::int16_t> takeOverTools(ToolList& tools, const OneBasedArray<Tool>& stored);

// Takes over the types that neither storedTypes nor our list has.
void takeOverTypes(ToolList& tools, const std::vector<std::string>& stored);

} // namespace torvik
