// SPDX-License-Identifier: MIT
#include "tools/tool_edits.h"

#include "base/numbers.h"

#include <algorithm>

namespace torvik {

void addTool(ToolList& tools, Tool tool) {
    const std::int16_t place = toInt16(tools.gintToolCount + 1);
    tools.gudtTools.resize(place);
    tools.gudtTools[place] = std::move(tool);
    tools.gintToolCount = place;
}

void deleteTool(ToolList& tools, std::int16_t place) {
    if (place < 1 || place > tools.gintToolCount)
        throw SubscriptOutOfRange(place, 1, tools.gintToolCount);
    for (int i = place; i < tools.gintToolCount; ++i)
        tools.gudtTools[i] = tools.gudtTools[i + 1];
    --tools.gintToolCount;
}

bool isTypeInUse(const ToolList& tools, std::string_view type) {
    const auto last = tools.gudtTools.begin() + tools.gintToolCount;
    return std::any_of(tools.gudtTools.begin(), last,
                       [&](const Tool& tool) { return tool.strType == type; });
}

void addUserType(ToolList& tools, std::string type) {
    const std::int16_t place = toInt16(std::max<int>(tools.gintUserToolTypeCount, 0) + 1);
    tools.gstrUserToolTypes.resize(place);
    tools.gstrUserToolTypes[place] = std::move(type);
    tools.gintUserToolTypeCount = place;
}

void deleteUserType(ToolList& tools, std::int16_t place) {
    if (place < 1 || tools.gintUserToolTypeCount < 1)
        throw SubscriptOutOfRange(place, 1, tools.gintUserToolTypeCount);
    for (int i = place; i < tools.gintUserToolTypeCount; ++i)
        tools.gstrUserToolTypes[i] = tools.gstrUserToolTypes[i + 1];
    --tools.gintUserToolTypeCount;
}

} // namespace torvik
