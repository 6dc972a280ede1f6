// SPDX-License-Identifier: MIT
// The simplex letters of A. V. Hershey, compiled in: single strokes on a grid where a capital
// letter is 21 high. Y upwards from the baseline.
#pragma once

#include "prepare/strokes.h"

#include <string_view>
#include <vector>

namespace torvik {

inline constexpr double fontCapHeight = 21;

// A letter: its pen lines, and what it takes of the line.
struct Glyph {
    std::vector<std::vector<Point>> lines;
    double left = 0;
    double right = 0;
};

// The glyphs of the printable ASCII characters, from the blank on. Raises RunTimeError where the
// font's text is damaged.
std::vector<Glyph> readHersheyFont(std::string_view text);

// Those that are compiled in.
const std::vector<Glyph>& hersheyFont();

} // namespace torvik
