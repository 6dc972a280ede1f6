// SPDX-License-Identifier: MIT
// What lies inside an outline is drawn before the outline, so that a part is cut free last.
#pragma once

#include "prepare/strokes.h"

#include <vector>

namespace torvik {

// Sorts the strokes of each pen by how many closed strokes of that pen they lie inside of, the
// deepest first; else they keep their order. Strokes are in the order of their pens.
void drawInsideFirst(std::vector<Stroke>& strokes, double tolerance);

} // namespace torvik
