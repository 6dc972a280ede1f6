// SPDX-License-Identifier: MIT
// The shapes of the preview as points in image pixels: lines of no width, discs, and the grooves
// that a round tool leaves. Curves become chords that lie within a tenth of a pixel. Outlines are
// closed polygons, to be filled by the nonzero winding rule.
#pragma once

#include "preview/picture_view.h"

#include <functional>
#include <vector>

namespace torvik {

struct Path;

using Points = std::vector<ScreenPoint>;

// Appends the path's line, in the direction in which it was drawn.
void appendLine(Points& points, const Path& path, const PictureView& view);

// A disc about the centre.
void discOutline(Points& outline, ScreenPoint centre, double radius);

// A ring of that width, its middle at the radius.
void ringOutline(Points& outline, ScreenPoint centre, double radius, double width);

// Calls fill(outline) for each of the outlines that together make the path's groove.
void visitGroove(const Path& path, const PictureView& view, double width,
                 const std::function<void(const Points& outline)>& fill);

} // namespace torvik
