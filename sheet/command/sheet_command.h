// SPDX-License-Identifier: MIT
// The job sheet without a window: torvik --sheet OUT.pdf DRAWING.
#pragma once

#include "commands/program_guide.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace torvik {

// Whether the arguments (the program's name first) ask for something on the console.
bool isSheetCommand(const std::vector<std::string>& arguments);

// What --help says.
ProgramGuide desktopGuide();

// Returns what the shell is told, as torvik-convert does. Needs a QGuiApplication for fonts.
int runSheetCommand(std::vector<std::string> arguments, std::ostream& out, std::ostream& err);

} // namespace torvik
