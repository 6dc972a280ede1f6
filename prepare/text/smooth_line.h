// SPDX-License-Identifier: MIT
// The lines of a font's letters as they are meant: where chords turn gently they stand for a curve,
// long ones and sharp corners stay what they are.
#pragma once

#include "prepare/strokes.h"

#include <span>

namespace torvik {

// Through all the points. A chord of `longChord` or more stays straight. One point makes a dot.
Stroke smoothLine(std::span<const Point> points, double longChord);

} // namespace torvik
