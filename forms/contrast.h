// SPDX-License-Identifier: MIT
// How well colours can be told apart, as the guidelines for the web measure it: 1 (not at all) to
// 21 (black and white).
#pragma once

#include <QColor>

namespace torvik {

inline constexpr double textContrast = 4.5; // of letters against their ground, at least
inline constexpr double edgeContrast = 3;   // of the edges of controls and of marks

double contrast(const QColor& a, const QColor& b);

// Black or white, whichever can be read better on the ground.
QColor readableOn(const QColor& ground);

// The colour, moved towards what can be read on the ground as far as the contrast asks for.
QColor withContrast(const QColor& colour, const QColor& ground, double least);

} // namespace torvik
