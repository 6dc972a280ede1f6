// SPDX-License-Identifier: MIT
// The manual page of a console program, in the language of man(7).
#pragma once

#include "commands/program_guide.h"

#include <span>
#include <string>
#include <string_view>

namespace torvik {

// `guides` are those of all programs, to point from one to the others.
std::string manualPage(const ProgramGuide& guide, std::span<const ProgramGuide> guides,
                       std::string_view version);

} // namespace torvik
