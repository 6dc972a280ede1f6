// SPDX-License-Identifier: MIT
// What the windows work on: the one job, the one tool list, and the services handed in at the
// program's start. It lives as long as the program.
#pragma once

#include "base/logger.h"
#include "base/std_message_box.h"
#include "job/job.h"
#include "tools/registry.h"
#include "tools/tool_list.h"

namespace torvik {

struct Workshop {
    Registry& registry;
    Logger& logger;
    StdMessageBox& messages;
    Job job{};
    ToolList tools{};
};

} // namespace torvik
