// SPDX-License-Identifier: MIT
// The tool list and the users' tool types, from and to the registry. Each of the four goes on after
// an error: it is logged and reported with the procedure and "modHpgl".
//   ToolCount           the number of tools       ToolTypes     the number of types
//   Tool01, Tool02 ...  number|type|mm|reserved   ToolType01... the type as typed
#pragma once

#include "base/logger.h"
#include "tools/registry.h"
#include "tools/tool_list.h"

namespace torvik {

// Replaces gudtTools and gintToolCount. A record without its three "|", or with a number too large
// for its field, stops the loading: the earlier tools stay, gudtTools ends with the record that
// failed, and gintToolCount keeps the count that was read. A count outside 16 bits empties the
// list.
void ToolDataLoad(ToolList& tools, const RegistryReader& registry, Logger& logger);

// Writes the count and every tool. Records above the count are left as they are. A place that the
// loading did not reach stops the saving there.
void ToolDataSave(const ToolList& tools, Registry& registry, Logger& logger);

// The same for gstrUserToolTypes, whose texts have no separators.
void ToolTypeUserLoad(ToolList& tools, const RegistryReader& registry, Logger& logger);
void ToolTypeUserSave(const ToolList& tools, Registry& registry, Logger& logger);

} // namespace torvik
