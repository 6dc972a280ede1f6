// SPDX-License-Identifier: MIT
// The numbered colours of CAD drawings.
#pragma once

#include <cstdint>

namespace torvik::dxf {

inline constexpr int colourOfBlock = 0;
inline constexpr int colourOfLayer = 256;

// The colour 0xRRGGBB of a number from 1 to 255; black for others. White, which CAD programs show
// on a dark screen, is black as on paper.
std::uint32_t colourOfNumber(int number);

} // namespace torvik::dxf
