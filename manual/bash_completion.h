// SPDX-License-Identifier: MIT
// How bash completes the command line of a console program, with the functions of the package
// bash-completion.
#pragma once

#include "commands/program_guide.h"

#include <string>

namespace torvik {

std::string bashCompletion(const ProgramGuide& guide);

} // namespace torvik
