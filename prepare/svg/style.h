// SPDX-License-Identifier: MIT
// How an element is painted: what it takes from the element around it, and what it says itself.
#pragma once

#include "prepare/svg/cascade.h"
#include "prepare/svg/colours.h"
#include "prepare/svg/lengths.h"

namespace torvik::svg {

enum class PaintKind : std::uint8_t { none, colour, currentColour, reference };

struct Paint {
    PaintKind kind = PaintKind::none;
    Colour colour;
    std::string_view reference;           // the id of a gradient or pattern
    PaintKind fallback = PaintKind::none; // where the reference leads nowhere
};

// None where the text is no paint.
std::optional<Paint> paintOf(std::string_view text);

enum class TextAnchor : std::uint8_t { start, middle, end };

struct Style {
    // What elements within take over.
    Paint fill{PaintKind::colour, {}, {}};
    Paint stroke;
    Colour color;
    double fillOpacity = 1;
    double strokeOpacity = 1;
    double fontSize = usualFontSize;
    bool isVisible = true;
    bool isDashed = false;
    int markers = 0; // of the three places that have one
    TextAnchor anchor = TextAnchor::start;
    bool keepsBlanks = false; // xml:space
    double opacity = 1;       // of all elements around, multiplied
    // What only the element itself has.
    bool isDisplayed = true;
    bool isClipped = false;
    int effects = 0; // a mask, a filter
    bool overflows = false;
    std::string_view transform;
};

// `rules` are those of the element around.
Style styleWithin(const Style& around, const PropertyValues& values, const LengthRules& rules);

} // namespace torvik::svg
