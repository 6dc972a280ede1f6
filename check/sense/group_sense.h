// SPDX-License-Identifier: MIT
// What is found in one group: its depth against the billet, and its tool, feeds and times.
#pragma once

#include "check/sense/asked.h"

namespace torvik::check {

void findDepthSense(const Job& job, const MachinedGroup& group, const Settings& settings,
                    const Billet& billet, Findings& findings);
// The area of all groups against the billet.
void findAreaSense(const Reach& reach, const Billet& billet, Findings& findings);
void findWorkSense(const Job& job, const MachinedGroup& group, const Settings& settings,
                   const Tool* tool, Findings& findings);

} // namespace torvik::check
