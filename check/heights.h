// SPDX-License-Identifier: MIT
// The heights of a program, learnt from how it uses them: each is the one that most quick moves of
// its role go to. mm; a height that is used nowhere is unknown.
#pragma once

#include "check/move.h"

namespace torvik::check {

struct Heights {
    double toolChange = unknown; // a tool, a new speed or the end comes next
    double safe = unknown;       // a move sideways comes next, or a new speed stands before
    double rapidDown = unknown;  // the slow way down comes next
};

Heights learnHeights(const Moves& moves);

} // namespace torvik::check
