// SPDX-License-Identifier: MIT
// The check of one written program from its text alone.
#pragma once

#include "check/finders.h"
#include "check/findings.h"
#include "check/move.h"
#include "check/summary.h"

#include <functional>
#include <string_view>

namespace torvik::check {

struct Report {
    const Target* target = nullptr; // nullptr where the text is a program of none
    Findings findings;
    Summary summary;
    Moves moves; // what the machine does
};

// `sideText` is the text beside a diskette program, empty where there is none. Without a target the
// text's own beginning tells it. `findPlan`, where one is given, lays the program beside a job;
// that takes the place of what only guesses at passes and holes. Raises nothing of its own for any
// bytes.
using FindPlan = std::function<void(const Walked& walked, Findings& findings)>;
Report checkProgram(std::string_view program, std::string_view sideText = {},
                    const Target* target = nullptr, const FindPlan& findPlan = {});

} // namespace torvik::check
