// SPDX-License-Identifier: MIT
// The groups of a tried program, with what they do in words and figures.
#pragma once

#include "check/time/move_times.h"
#include "trial/trial.h"

namespace torvik {

struct ProgramSize;

// Raises SubscriptOutOfRange where a group has no settings.
std::vector<TriedGroup> triedGroups(const Job& job, const ToolList& tools, const ProgramSize& size,
                                    const check::Moves& moves,
                                    const std::vector<check::MoveTime>& times);

} // namespace torvik
