// SPDX-License-Identifier: MIT
// A tool list of tools with given numbers.
#pragma once

#include "tools/tool_list.h"

namespace torvik {

inline ToolList workshopTools(std::initializer_list<std::int16_t> numbers) {
    ToolList tools;
    for (const std::int16_t number : numbers) {
        tools.gudtTools.append({number, "Drill", 3});
        ++tools.gintToolCount;
    }
    return tools;
}

} // namespace torvik
