// SPDX-License-Identifier: MIT
// The tool list and the users' tool types, from and to the registry. Each of the four goes on after
// an error: it is logged and reported with the procedure and "modHpgl".
//   ToolCount           the number of tools       ToolTypes     the number of types
//   Tool01, Tool02 ...  number|type|mm|reserved   ToolType01... the type as typed
#pragma once

#include "base/logger.h"
#include "tools/registry.h"
#include "tools/tool_list.h"
#include "tools/tool_merge.h"

namespace torvik {

// Replaces gudtTools and gintToolCount. A record without its three "|", or with a number too large
// for its field, leaves a place without a tool; all such records are reported at once. What cannot
// be read at all leaves the list as it was.
void ToolDataLoad(ToolList& tools, const RegistryReader& registry, Logger& logger);

// Writes the count and every tool, after the changes of other copies of the program were taken over
// (tool_merge.h). Records above the count, and those that could not be read and have not moved, are
// left as they are. Where the saving fails, toolsUnsaved says so.
TakenOver ToolDataSave(ToolList& tools, Registry& registry, Logger& logger);

// The same for gstrUserToolTypes, whose texts have no separators.
void ToolTypeUserLoad(ToolList& tools, const RegistryReader& registry, Logger& logger);
void ToolTypeUserSave(ToolList& tools, Registry& registry, Logger& logger);

} // namespace torvik
