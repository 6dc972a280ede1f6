// SPDX-License-Identifier: MIT
// The letters that texts are drawn with: those of the font, and those of other languages that are
// put together of its parts.
#pragma once

#include "prepare/text/hershey_font.h"

namespace torvik {

// nullptr where there is no such letter.
const Glyph* findLetter(char32_t letter);

// What stands for a letter that there is not.
const Glyph& emptyBox();

} // namespace torvik
