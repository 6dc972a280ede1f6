// SPDX-License-Identifier: MIT
// The texts of a DXF drawing in single strokes.
#pragma once

#include "prepare/dxf/figures.h"

namespace torvik::dxf {

struct DrawnText {
    Drawn drawn;
    long unknownLetters = 0;
};

// In bytes, before it is drawn.
std::size_t lengthOfText(const Entity& entity);

// A line of text, or what a block's use says in place of a template.
DrawnText textOf(const Entity& entity);
// Text of several lines, which are broken where they are wider than the room given.
DrawnText paragraphOf(const Entity& entity);

} // namespace torvik::dxf
