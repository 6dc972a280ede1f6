// SPDX-License-Identifier: MIT
// What the job's own reader cannot take as it stands. It takes a direction within 0.0014 radian of
// the X axis for the axis itself, so that an arc which begins there would end beside its place:
// such an arc begins with a short line that leads out of that range. An arc too large for the
// digits of a sweep becomes lines.
#pragma once

#include "prepare/strokes.h"

#include <vector>

namespace torvik {

// Leaves strokes in written form. `tolerance` in plotter units.
void makeReadable(std::vector<Stroke>& strokes, double tolerance);

} // namespace torvik
