// SPDX-License-Identifier: MIT
// The basic shapes and paths as strokes.
#pragma once

#include "prepare/affine.h"
#include "prepare/svg/lengths.h"

#include <pugixml.hpp>
#include <string_view>
#include <vector>

namespace torvik::svg {

struct ShapeStrokes {
    std::vector<Stroke> strokes;
    bool isArea = true;     // can be filled
    bool isComplete = true; // all of it was understood
};

using ShapeMaker = ShapeStrokes (*)(pugi::xml_node, const LengthRules&, const Affine&);

// How an element of this name is drawn; nullptr where it is no shape.
ShapeMaker findShape(std::string_view name);

// The length of an attribute, 0 where there is none.
double lengthAttribute(pugi::xml_node node, const char* name, const LengthRules& rules,
                       Along along);

} // namespace torvik::svg
