// SPDX-License-Identifier: MIT
// Letters in a row as strokes: from the places that the picture gives, aligned as it says.
#pragma once

#include "prepare/affine.h"
#include "prepare/svg/text_letters.h"

namespace torvik::svg {

// Letters that follow one another in one style.
struct TextRun {
    std::size_t style = 0; // in TextLetters::styles
    std::vector<Stroke> strokes;
    long unknownLetters = 0;
};

std::vector<TextRun> runsOf(const TextLetters& text, const Affine& map);

} // namespace torvik::svg
