// SPDX-License-Identifier: MIT
// The letters of a <text> element with what is said of each: its place and its style. Blanks are
// drawn together as the picture's language has it.
#pragma once

#include "prepare/svg/document.h"
#include "prepare/svg/style.h"

namespace torvik::svg {

struct Letter {
    std::string_view bytes; // UTF-8
    std::size_t style = 0;  // in TextLetters::styles
    std::optional<double> x;
    std::optional<double> y;
    double dx = 0;
    double dy = 0;
};

struct TextLetters {
    std::vector<Letter> letters;
    std::vector<Style> styles;
    long undrawn = 0; // texts along paths
};

TextLetters lettersOf(pugi::xml_node text, const Style& style, const LengthRules& rules,
                      const Document& document);

} // namespace torvik::svg
