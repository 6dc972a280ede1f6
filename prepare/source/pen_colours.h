// SPDX-License-Identifier: MIT
// Which of the eight pens looks most like a colour.
#pragma once

#include <cstdint>
#include <string>

namespace torvik {

// Colours are 0xRRGGBB, pens 1 to 8. Distances are those that the eye sees (the CIE Lab space).
int nearestPen(std::uint32_t colour);

// "#rrggbb" in small letters.
std::string colourName(std::uint32_t colour);

} // namespace torvik
