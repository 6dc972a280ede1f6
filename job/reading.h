// SPDX-License-Identifier: MIT
// How much of a drawing's file its elements tell.
#pragma once

namespace torvik {

// Counts of instructions.
struct Reading {
    // Passed over or read otherwise than written, so that lines are missing, or lie elsewhere, or
    // have another size or pen than the drawing says.
    long lost = 0;
    // Passed over with no difference for the lines.
    long harmless = 0;
    // Nothing but SP, PU, PD, AA and CI, as they are to be written, and IN.
    bool isPlain = true;
};

} // namespace torvik
