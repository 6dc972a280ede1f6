// SPDX-License-Identifier: MIT
// Finds what is machined inside a closed outline after that was cut through: the part may have come
// loose by then. One finding for each group that comes too late.
#pragma once

#include "check/sense/asked.h"

namespace torvik::check {

// Nothing where the billet's depth (mm) is unknown.
void findEarlyOutlines(const Job& job, const std::vector<AskedGroup>& asked, double billetDepth,
                       Findings& findings);

} // namespace torvik::check
