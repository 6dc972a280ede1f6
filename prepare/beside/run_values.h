// SPDX-License-Identifier: MIT
// The values of --run and --tabs.
#pragma once

#include "prepare/beside/run_options.h"

#include <string_view>

namespace torvik {

// "2=outside:6", "3=pocket:3,50": pen 1 to 8, the tool's diameter and the step in percent of it.
// False where the text is no such value.
bool readRun(std::string_view value, RunOptions& options);

// "1=2:4:3": pen 2 gets the outlines of pen 1 with 4 gaps for tabs of 3 mm.
bool readTabs(std::string_view value, RunOptions& options);

} // namespace torvik
