// SPDX-License-Identifier: MIT
#include "tools/tool_list.h"

namespace torvik {

std::int16_t intToolGetId(const ToolList& tools, std::int16_t number) {
    for (std::int16_t place = 1; place <= tools.gintToolCount; ++place)
        if (tools.gudtTools[place].intNumber == number)
            return place;
    return 0;
}

const Tool& toolAt(const ToolList& tools, std::int16_t place) {
    if (place > tools.gintToolCount) // a deleted tool's place is still in the array
        throw SubscriptOutOfRange(place, 1, tools.gintToolCount);
    return tools.gudtTools[place];
}

} // namespace torvik
