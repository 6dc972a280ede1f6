// SPDX-License-Identifier: MIT
// The order in which a pen draws its strokes, and which way round, so that little is travelled in
// between: the nearest stroke next, then two-way exchanges until nothing is won.
#pragma once

#include "prepare/strokes.h"

#include <span>
#include <stop_token>
#include <vector>

namespace torvik {

// Orders the strokes of each pen, pens ascending; each pen's way begins where the one before it
// ended, the first at the origin. Where the order cannot be made shorter it stays as it is.
// Asked to stop, it leaves any order that is still good for drawing.
void orderStrokes(std::vector<Stroke>& strokes, const std::stop_token& stop = {});

// Sorts strokes by pen and leaves their order within a pen.
void sortByPen(std::vector<Stroke>& strokes);

// The way from the origin to the first stroke and between strokes, plotter units.
double airLength(std::span<const Stroke> strokes);

} // namespace torvik
