// SPDX-License-Identifier: MIT
// What is found in a program, a family each. Every family looks at the whole program once.
#pragma once

#include "check/findings.h"
#include "check/heights.h"
#include "check/move.h"
#include "check/program.h"

namespace torvik::check {

struct Walked {
    const Program& program;
    const Moves& moves;
    Heights heights;

    const Target& target() const { return *program.target; }
};

// The first and the last statements, and what stands before a tool change.
void findStructure(const Program& program, Findings& findings);
// How the tool goes up, down and across.
void findMotion(const Walked& walked, Findings& findings);
// Plunges that cut nothing, moves that are missing.
void findPlunges(const Walked& walked, Findings& findings);
void findTools(const Walked& walked, Findings& findings);
void findSpindle(const Walked& walked, Findings& findings);
void findFeeds(const Walked& walked, Findings& findings);
void findArcs(const Walked& walked, Findings& findings);
// Against the billet of the header.
void findBillet(const Walked& walked, Findings& findings);
// Passes that are not alike.
void findPasses(const Walked& walked, Findings& findings);
// Holes that are not alike, or drilled twice.
void findHoles(const Walked& walked, Findings& findings);

} // namespace torvik::check
