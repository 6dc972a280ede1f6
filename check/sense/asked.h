// SPDX-License-Identifier: MIT
// What a job asks for, group by group in machining order. A group whose settings are not there is
// left out; one without a tool has none.
#pragma once

#include "check/sense/sense.h"

#include <vector>

namespace torvik {
struct Tool;
}

namespace torvik::check {

struct AskedGroup {
    MachinedGroup group;
    const Settings& settings;
    const Tool* tool;                // nullptr where none is chosen
    std::vector<std::int16_t> paths; // subscripts of gudtPaths, in file order

    bool isDrilled() const { return group.radius > 0; }
    PenGroup penGroup() const { return {group.pen, group.radius}; }
};

// Calls visit(MachinedGroup, Settings) for every group.
template <typename Visit>
void visitAsked(const Job& job, PenOrder order, Visit visit) {
    const auto& settings = job.answers.gudtSettings;
    const auto take = [&](const MachinedGroup& group) {
        if (group.settings >= 1 && group.settings <= settings.count())
            visit(group, settings[group.settings]);
    };
    for (const std::int16_t pen : order)
        if (pen > 0)
            visitGroupsOfPen(job.answers, pen, take);
}

// All groups with their paths.
std::vector<AskedGroup> askedGroups(const Job& job, const ToolList& tools, PenOrder order);

// The order given for the job, or that of the pens' numbers where none was.
std::vector<std::int16_t> orderOf(const Answers& answers);

// The tool of a group, nullptr where none of the list is chosen.
const Tool* toolOf(const Settings& settings, const ToolList& tools);

// "the Red lines", "the 6.0 mm Blue holes".
std::string nameOf(const Job& job, const MachinedGroup& group);

} // namespace torvik::check
