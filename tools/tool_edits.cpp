// SPDX-License-Identifier: MIT
#include "tools/tool_edits.h"

#include "base/numbers.h"
#include "base/picture.h"

#include <algorithm>

namespace torvik {
namespace {

void checkWholeList(const ToolList& tools) {
    if (loadedToolCount(tools) < tools.gintToolCount)
        throw InvalidCall("only " + formatInteger(loadedToolCount(tools)) + " of " +
                          formatInteger(tools.gintToolCount) +
                          " tools could be read; edit the one that lacks its details, press OK "
                          "and start the program again before tools are added or deleted");
}

} // namespace

void addTool(ToolList& tools, Tool tool) {
    checkWholeList(tools);
    const std::int16_t place = toInt16(loadedToolCount(tools) + 1);
    tools.gudtTools.resize(place);
    tools.gudtTools[place] = std::move(tool);
    tools.gintToolCount = place;
}

void deleteTool(ToolList& tools, std::int16_t place) {
    checkWholeList(tools);
    toolAt(tools, place);
    for (int i = place; i < tools.gintToolCount; ++i)
        tools.gudtTools[i] = tools.gudtTools[i + 1];
    --tools.gintToolCount;
}

bool isTypeInUse(const ToolList& tools, std::string_view type) {
    const auto last = tools.gudtTools.begin() + loadedToolCount(tools);
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
