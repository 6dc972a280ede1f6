// SPDX-License-Identifier: MIT
// Strokes that go on where the one before them ended, and strokes drawn twice.
#pragma once

#include "prepare/strokes.h"

#include <vector>

namespace torvik {

// Makes one stroke of consecutive ones of one pen that touch end to start. Closed strokes stay by
// themselves. Returns how many strokes were taken up by the one before.
long joinTouching(std::vector<Stroke>& strokes);

// Takes out lines, arcs and circles that the same pen has drawn before, in either direction.
// Returns their count.
long dropDuplicates(std::vector<Stroke>& strokes);

} // namespace torvik
