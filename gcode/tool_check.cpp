// SPDX-License-Identifier: MIT
#include "gcode/tool_check.h"

#include "job/machined_groups.h"
#include "tools/tool_list.h"

namespace torvik {

std::string groupWithoutTool(const Job& job, const ToolList& tools) {
    std::string found;
    visitMachinedGroups(job, [&](const MachinedGroup& group) {
        const std::int16_t tool = job.answers.gudtSettings[group.settings].intTool;
        if (found.empty() && (tool < 1 || tool > tools.gintToolCount))
            found = groupText(job.answers.gudtPens[group.pen], group.radius);
    });
    return found;
}

} // namespace torvik
