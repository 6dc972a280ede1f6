// SPDX-License-Identifier: MIT
// What the job's own reader passes over in a drawing, by that reader's rules for lines, blanks and
// semicolons. For saying so where a drawing is opened or shown.
#pragma once

#include <string_view>

namespace torvik {

struct SkippedInstructions {
    // Passed over or read in part only, so that lines are missing, or lie elsewhere, or have
    // another size or pen than the drawing says.
    long harmful = 0;
    // Passed over with no difference for the lines.
    long harmless = 0;
};

SkippedInstructions countSkipped(std::string_view bytes);

} // namespace torvik
