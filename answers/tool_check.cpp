// SPDX-License-Identifier: MIT
#include "answers/tool_check.h"

#include "tools/tool_list.h"

namespace torvik {

std::optional<MachinedGroup> groupWithoutTool(const Job& job, const ToolList& tools) {
    std::optional<MachinedGroup> found;
    visitMachinedGroups(job, [&](const MachinedGroup& group) {
        if (!found && !isInList(tools, job.answers.gudtSettings[group.settings].intTool))
            found = group;
    });
    return found;
}

} // namespace torvik
