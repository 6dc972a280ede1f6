// SPDX-License-Identifier: MIT
// The moves of a long program, made up: 30 000 elements of 2 mm in ten passes, lines and quarter
// circles in turns, in runs of a hundred over a sheet. mm.
#pragma once

#include "check/move.h"

namespace torvik {

struct PlateSize {
    double width = 400;
    double height = 300;
};

check::Moves longProgram(PlateSize sheet, long elements = 30000, int passes = 10);

} // namespace torvik
