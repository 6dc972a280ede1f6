// SPDX-License-Identifier: MIT
// Which settings groups have another tool than before, after tools were deleted: a group knows its
// tool by the place in the list only.
#pragma once

#include "job/job.h"
#include "tools/tool_list.h"

#include <vector>

namespace torvik {

// The tools of all groups at one moment.
class ToolsOfGroups {
public:
    ToolsOfGroups(const Job& job, const ToolList& tools);

    struct Group {
        std::int16_t pen;
        std::int16_t radius; // subscript of the pen's sngRadii, 0 for the pen's own

        bool operator==(const Group&) const = default;
    };

    // The colours and hole sizes whose tool is now another one or missing, without the settings
    // group `passedOver` (0: none is passed over).
    std::vector<Group> changedSince(const Job& job, const ToolList& tools,
                                    std::int16_t passedOver) const;

    // The groups keep their tools when tools go that another copy of the program has deleted;
    // `removed` are their places (tool_merge.h). A group whose own tool has gone is open again.
    void follow(Job& job, const std::vector<std::int16_t>& removed) const;

private:
    std::vector<int> m_numbers; // per settings group, the tool's own number; 0 for none
};

} // namespace torvik
