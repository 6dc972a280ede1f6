// SPDX-License-Identifier: MIT
// The data of a path ("M0 0h10a5 5 0 0110 0z"): all commands, absolute and relative, with or
// without blanks between numbers and flags.
#pragma once

#include "prepare/svg/stroke_builder.h"

#include <string_view>

namespace torvik::svg {

// Draws the path. False where an error ends it; what comes before the error is drawn.
bool drawPathData(std::string_view data, StrokeBuilder& builder);

} // namespace torvik::svg
