// SPDX-License-Identifier: MIT
#include "tools/tool_list.h"

#include <algorithm>

namespace torvik {

std::int16_t loadedToolCount(const ToolList& tools) {
    const auto loaded = std::min<std::ptrdiff_t>(tools.gintToolCount, tools.gudtTools.count());
    return static_cast<std::int16_t>(std::max<std::ptrdiff_t>(loaded, 0));
}

bool isInList(const ToolList& tools, std::int16_t place) {
    return place >= 1 && place <= loadedToolCount(tools);
}

std::int16_t intToolGetId(const ToolList& tools, std::int16_t number) {
    if (number == 0) // a record that could not be read has it
        return 0;
    for (int place = 1; place <= tools.gintToolCount; ++place)
        if (tools.gudtTools[place].intNumber == number)
            return static_cast<std::int16_t>(place);
    return 0;
}

const Tool& toolAt(const ToolList& tools, std::int16_t place) {
    if (place > tools.gintToolCount) // a deleted tool's place is still in the array
        throw SubscriptOutOfRange(place, 1, tools.gintToolCount);
    return tools.gudtTools[place];
}

} // namespace torvik
