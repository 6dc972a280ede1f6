// SPDX-License-Identifier: MIT
// The pace of a control's machine as the workshop has set it, in the program's own settings file:
// a section [Time-NAME] for each control, as in [Time-kestra]. What is missing there, is no number
// or makes no sense is as the control's row has it.
#pragma once

#include "check/targets.h"

#include <filesystem>
#include <string_view>

namespace torvik::check {

// Torvik/Torvik.ini in the user's configuration folder.
std::filesystem::path ownSettingsFile();

// The pace by the text of a settings file.
Pace paceOf(const Target& target, std::string_view settings);
// The pace by the user's own file; one that cannot be read sets nothing.
Pace paceOf(const Target& target);

} // namespace torvik::check
