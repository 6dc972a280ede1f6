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

// What the changes of another copy of the program did to our list.
struct TakenOver {
    // The numbers of tools that we changed or deleted, too, and which stay as we have them.
    std::vector<std::int16_t> overruled;
    // The places of the tools that it deleted, each as it was when the ones before had gone.
    std::vector<std::int16_t> removed;
};

// The place that stood at `place` before the removals; 0 where it was removed.
std::int16_t placeAfter(std::int16_t place, const std::vector<std::int16_t>& removed);

// Takes over the tools that `stored` has and storedTools has not, or has otherwise: new tools come
// last, or into a place that could not be read before. A tool that is stored no more goes, where we
// have not changed it and `stored` is sure to be the whole list.
TakenOver takeOverTools(ToolList& tools, const OneBasedArray<Tool>& stored, bool isWhole);

// Takes over the types that neither storedTypes nor our list has.
void takeOverTypes(ToolList& tools, const std::vector<std::string>& stored);

} // namespace torvik
