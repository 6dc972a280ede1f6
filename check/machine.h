// SPDX-License-Identifier: MIT
// The machine: walks the statements of a program and says what it does at each of them.
#pragma once

#include "check/move.h"
#include "check/program.h"

namespace torvik::check {

Moves walk(const Program& program);

} // namespace torvik::check
