// SPDX-License-Identifier: MIT
// How labels are written (SI, SR, DI, DR, SL, ES, LO, CS, CA, DT) and where their letters come to.
// A letter's width is that of a capital, a cell is half as wide again, and lines are two heights
// apart.
#pragma once

#include "prepare/affine.h"
#include "prepare/source/frame.h"

#include <optional>
#include <string_view>

namespace torvik {

// What the drawing has set.
struct Lettering {
    std::optional<Point> size;         // of a letter, plotter units
    std::optional<Point> relativeSize; // or in hundredths of the corners' distance
    Point direction{1, 0};
    bool isRelativeDirection = false; // its parts count in the corners' distances
    double slant = 0;                 // tangent of the angle
    Point extraSpace;                 // cells to the right, lines
    int origin = 1;                   // which point of the label the pen stands at: 1-9, 11-19
    int standardSet = 0;
    int alternateSet = 0;
    bool isAlternate = false;
    char terminator = '\x03';
    bool writesTerminator = false;
    std::string_view kept; // BL

    int set() const { return isAlternate ? alternateSet : standardSet; }
};

// The vectors on paper, in plotter units.
struct LetterGrid {
    LetterGrid(const Lettering& lettering, const Frame& frame);

    Affine letters; // a text line's cells and heights
    Point cell;     // from a letter to the next
    Point line;     // to the line above
};

// From the pen's place to where the first letter begins, in cells and heights, for a label of the
// given width in cells.
Point shiftToLabel(int origin, double width);

// A letter's width in cells.
inline constexpr double letterWidth = 2.0 / 3;

} // namespace torvik
