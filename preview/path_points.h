// SPDX-License-Identifier: MIT
// The lines of paths as points in image pixels. Curves become chords of one turn that lie no
// farther than a sixth of a pixel from them.
#pragma once

#include "preview/picture_view.h"

#include <vector>

namespace torvik {

struct Path;

using Points = std::vector<ScreenPoint>;

// Whether a curve's chords lie within it, or the joints outside by as much as the middles within:
// those are longer and fewer, but their corners stick out of wide grooves.
enum class Chords { within, across };

// Appends the path's line, in the direction in which it was drawn. It keeps its ends.
void appendLine(Points& points, const Path& path, const PictureView& view,
                Chords chords = Chords::within);

// Points of a circle.
void appendCircle(Points& points, ScreenPoint centre, double radius);

} // namespace torvik
