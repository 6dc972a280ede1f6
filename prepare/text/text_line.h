// SPDX-License-Identifier: MIT
// A text as single strokes, as a mill or an engraver draws it. One line: the baseline is Y 0,
// capital letters are 1 high, the first letter's place begins at X 0.
#pragma once

#include "prepare/strokes.h"

#include <optional>
#include <string_view>
#include <vector>

namespace torvik {

// Every letter takes the same room, in heights of a capital letter. Wide ones are narrowed.
struct FixedPitch {
    double letter = 0; // the width in which it stands in the middle
    double step = 0;   // from one letter to the next
};

struct TextForm {
    std::optional<FixedPitch> fixed; // else each letter takes its own room
    double spacing = 0;              // added after each letter
};

struct TextLine {
    std::vector<Stroke> strokes; // of pen 1
    double width = 0;            // to where the next letter would begin
    long letters = 0;            // blanks, too
    long unknownLetters = 0;     // drawn as empty boxes
};

// UTF-8; a byte that is none, and a letter that the font has not, counts as unknown. Control
// characters draw nothing and take no room.
TextLine textLine(std::string_view utf8, const TextForm& form = {});

} // namespace torvik
