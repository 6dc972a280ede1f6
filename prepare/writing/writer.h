// SPDX-License-Identifier: MIT
// Strokes as a drawing that the job's own reader reads completely: one instruction a line, PU to
// the start of every stroke, PD for its lines, AA for its arcs, CI for circles, each pen once.
// Coordinates are plotter units with at most four decimals.
#pragma once

#include "prepare/strokes.h"

#include <span>
#include <string>

namespace torvik {

// Strokes in written form, sorted by pen, without dots and curves.
std::string writeDrawing(std::span<const Stroke> strokes);

} // namespace torvik
