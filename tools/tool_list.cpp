// SPDX-License-Identifier: MIT
#include "tools/tool_list.h"

namespace torvik {

bool isInList(const ToolList& tools, std::int16_t place) {
    return place >= 1 && place <= tools.gintToolCount && !tools.gudtTools[place].strUnreadable;
}

const Tool* findTool(const ToolList& tools, std::int16_t place) {
    return isInList(tools, place) ? &tools.gudtTools[place] : nullptr;
}

std::int16_t intToolGetId(const ToolList& tools, std::int16_t number) {
    if (number == 0) // a place without a tool has it
        return 0;
    for (int place = 1; place <= tools.gintToolCount; ++place)
        if (tools.gudtTools[place].intNumber == number)
            return static_cast<std::int16_t>(place);
    return 0;
}

const Tool& toolAt(const ToolList& tools, std::int16_t place) {
    if (place > tools.gintToolCount) // a deleted tool's place is still in the array
        throw SubscriptOutOfRange(place, 1, tools.gintToolCount);
    const Tool& tool = tools.gudtTools[place];
    if (tool.strUnreadable)
        throw InvalidCall("the record of this tool cannot be read");
    return tool;
}

} // namespace torvik
