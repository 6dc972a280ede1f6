// SPDX-License-Identifier: MIT
// What the manual pages of all programs say of where an installed Torvik keeps things.
#pragma once

#include "commands/program_guide.h"

#include <span>

namespace torvik {

// Variables of the environment.
std::span<const GuideRow> variables();

// Files and folders.
std::span<const GuideRow> places();

} // namespace torvik
