// SPDX-License-Identifier: MIT
// What can be seen from a job alone, before a program is written: heights, feeds and depths that
// cannot be meant, tools that do not fit their work, a billet that is too small, an order that cuts
// the part free too early. Lengths are mm. What is not answered yet is passed over; the findings
// bear no line. Raises nothing for what a user can answer.
#pragma once

#include "check/findings.h"
#include "check/program_header.h"
#include "job/extents.h"
#include "job/machined_groups.h"

#include <span>

namespace torvik {
struct ToolList;
}

namespace torvik::check {

// Everything, in the order in which the pens are machined.
void findSense(const Job& job, const ToolList& tools, Findings& findings);

// The same beside what was found in the job's program: each fault stays once.
void addSense(const Job& job, const ToolList& tools, Findings& findings);

// What concerns one group alone, with these settings in place of those that the job holds.
void findSense(const Job& job, const ToolList& tools, const MachinedGroup& group,
               const Settings& settings, Findings& findings);

// The heights of the whole job; one that is not a number is not answered yet.
void findHeightSense(float toolChange, float safe, float rapidDown, Findings& findings);

// How far the centres of the tools go, for whatever is machined.
struct Reach {
    torvik::Extents area = noExtents();
    float deepest = 0;
    MachinedGroup deepestGroup{}; // which goes that deep
};
Reach reachOf(const Job& job, const ToolList& tools);

// The billet as the header's three texts tell it.
Billet billetOf(std::string_view length, std::string_view width, std::string_view depth);
// The billet against what is machined; of the depths, the deepest alone.
void findBilletSense(const Job& job, const Reach& reach, const Billet& billet, Findings& findings);

// What depends on the order of the pens, which is given here; entries of 0 hold no pen.
using PenOrder = std::span<const std::int16_t>;
void findOrderSense(const Job& job, const ToolList& tools, PenOrder order, Findings& findings);
// How often the tool is changed in that order.
int toolChanges(const Job& job, const ToolList& tools, PenOrder order);

} // namespace torvik::check
