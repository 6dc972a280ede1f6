// SPDX-License-Identifier: MIT
#include "prepare/source/lettering.h"

namespace torvik {
namespace {

constexpr double linesApart = 2; // heights

Point sizeOf(const Lettering& lettering, const Frame& frame) {
    if (lettering.relativeSize) {
        const Point corners = frame.cornerDistance();
        return {lettering.relativeSize->x * corners.x / 100,
                lettering.relativeSize->y * corners.y / 100};
    }
    return lettering.size.value_or(frame.usualLetter());
}

Point directionOf(const Lettering& lettering, const Frame& frame) {
    Point direction = lettering.direction;
    if (lettering.isRelativeDirection) {
        const Point corners = frame.cornerDistance();
        direction = {direction.x * corners.x, direction.y * corners.y};
    }
    return frame.pageVector(direction * (1 / length(direction)));
}

} // namespace

LetterGrid::LetterGrid(const Lettering& lettering, const Frame& frame) {
    const Point size = sizeOf(lettering, frame);
    const Point along = directionOf(lettering, frame);
    const Point up = turnedLeft(along) * size.y;
    letters.xAxis = along * (size.x / letterWidth);
    letters.yAxis = up + along * (lettering.slant * size.y);
    cell = letters.xAxis * (1 + lettering.extraSpace.x);
    line = up * (linesApart * (1 + lettering.extraSpace.y));
}

Point shiftToLabel(int origin, double width) {
    const int place = (origin - 1) % 10; // 0 to 8, in columns of three
    const int column = place / 3;        // left, middle, right
    const int row = place % 3;           // bottom, middle, top
    Point shift{-width * column / 2, -0.5 * row};
    if (origin > 10) // half a letter away from the pen
        shift = shift + Point{letterWidth / 2 * (1 - column), 0.5 * (1 - row)};
    return shift;
}

} // namespace torvik
