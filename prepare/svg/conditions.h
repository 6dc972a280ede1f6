// SPDX-License-Identifier: MIT
// Small questions about elements that decide what of a picture is drawn.
#pragma once

#include "prepare/affine.h"
#include "prepare/svg/view_box.h"

#include <pugixml.hpp>
#include <string_view>

namespace torvik::svg {

// Whether a <switch> may choose the element: it asks for no extension, and for English or no
// certain language.
bool meetsConditions(pugi::xml_node node);

// Elements whose shapes others draw with or cut with.
bool isShapeHolder(std::string_view name);

// Whether strokes that were drawn lie partly outside the viewport, which `map` takes to them.
bool reachesOut(const StrokeExtents& extents, const Rectangle& viewport, const Affine& map);

} // namespace torvik::svg
