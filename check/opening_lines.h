// SPDX-License-Identifier: MIT
// The lines before a program's first block number, and which control a program is for.
#pragma once

#include "check/targets.h"

#include <string_view>

namespace torvik::check {

// Whether a line is the opening line of this pattern: "#" is a number, "####" one of four digits or
// more, both without leading zeros where they have more.
bool isOpeningLine(std::string_view pattern, std::string_view line);

// The control a program is for, by its first line; where that does not tell it, the control that
// understands most of the lines behind it. nullptr where none understands any.
const Target* recogniseTarget(std::string_view program);

// The number of digits behind the "N" that a statement begins with, 0 where it has no line number.
std::size_t lineNumberDigits(std::string_view line);

} // namespace torvik::check
