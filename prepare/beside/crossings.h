// SPDX-License-Identifier: MIT
// Where outlines cross themselves or each other, so that inside and outside are not what the eye
// sees. Plotter units.
#pragma once

#include "prepare/beside/area.h"

namespace torvik {

// The places, at most `most` of them. Outlines that only touch do not cross.
std::vector<Point> crossingsOf(std::span<const Corners> outlines, std::size_t most);

} // namespace torvik
