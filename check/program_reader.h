// SPDX-License-Identifier: MIT
// Reads a program's text: opening lines, header, statements. Finds what is wrong with single lines
// and goes on behind it: line ends, line numbers, unknown statements, numbers, comments, opening
// lines.
#pragma once

#include "check/findings.h"
#include "check/program.h"

#include <string_view>

namespace torvik::check {

Program readProgram(const Target& target, std::string_view text, Findings& findings);

} // namespace torvik::check
