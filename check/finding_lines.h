// SPDX-License-Identifier: MIT
// The findings of a program as lines for a console.
#pragma once

#include "check/findings.h"

#include <string>
#include <string_view>

namespace torvik::check {

// "FILE:LINE: KIND: SENTENCE" for each finding, by line ("FILE: KIND: SENTENCE" first for those
// about no line); then how many more there are of a kind that comes again and again. Only what is
// dangerous or wrong where `quiet`.
std::string findingLines(std::string_view file, const Findings& findings, bool quiet);

} // namespace torvik::check
