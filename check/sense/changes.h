// SPDX-License-Identifier: MIT
// How often the tool is changed, and how often it would have to be.
#pragma once

#include "check/sense/asked.h"

namespace torvik::check {

// In the order of the groups.
int changesIn(const std::vector<AskedGroup>& asked);
// In the best order of their pens; the holes of one pen keep theirs.
int fewestChanges(const std::vector<AskedGroup>& asked);

} // namespace torvik::check
