// SPDX-License-Identifier: MIT
// torvik-check: checks written programs, one after the other.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace torvik::check {

// Does what the arguments (UTF-8, the program's name first) tell and returns the exit code.
int runChecker(std::vector<std::string> arguments, std::ostream& out, std::ostream& err);

} // namespace torvik::check
