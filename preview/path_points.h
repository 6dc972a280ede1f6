// SPDX-License-Identifier: MIT
// The lines of paths as points in image pixels. Curves become chords of one length that lie within
// a tenth of a pixel.
#pragma once

#include "preview/picture_view.h"

#include <vector>

namespace torvik {

struct Path;

using Points = std::vector<ScreenPoint>;

// Appends the path's line, in the direction in which it was drawn.
void appendLine(Points& points, const Path& path, const PictureView& view);

// Points of a circle.
void appendCircle(Points& points, ScreenPoint centre, double radius);

} // namespace torvik
