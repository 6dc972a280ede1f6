// SPDX-License-Identifier: MIT
// The check of one written program from its text alone.
#pragma once

#include "check/findings.h"
#include "check/program.h"
#include "check/summary.h"

#include <string_view>

namespace torvik::check {

struct Report {
    const Target* target = nullptr; // nullptr where the text is a program of none
    Findings findings;
    Summary summary;
};

// `sideText` is the text beside a diskette program, empty where there is none. Without a target the
// text's own beginning tells it. Raises nothing for any bytes.
Report checkProgram(std::string_view program, std::string_view sideText = {},
                    const Target* target = nullptr);

} // namespace torvik::check
