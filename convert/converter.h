// SPDX-License-Identifier: MIT
// torvik-convert: drawings in, programs out, with no window.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace torvik {

// Does what the arguments (the program's name first) ask for; progress goes to `out`, one line for
// each thing that went wrong to `err`. Returns the exit code of exit_codes.h.
int runConverter(std::vector<std::string> arguments, std::ostream& out, std::ostream& err);

} // namespace torvik
