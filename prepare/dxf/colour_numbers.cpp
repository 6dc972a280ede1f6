// SPDX-License-Identifier: MIT
#include "prepare/dxf/colour_numbers.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace torvik::dxf {
namespace {

constexpr std::array<std::uint32_t, 10> plainColours{0x000000, 0xFF0000, 0xFFFF00, 0x00FF00,
                                                     0x00FFFF, 0x0000FF, 0xFF00FF, 0x000000,
                                                     0x808080, 0xC0C0C0};
constexpr std::array<std::uint32_t, 6> greys{0x333333, 0x505050, 0x696969,
                                             0x828282, 0xBEBEBE, 0x000000};
constexpr int firstHue = 10;
constexpr int firstGrey = 250;

// From 10 on in tens: 24 hues round the circle, each in five brightnesses, odd ones half as strong.
std::uint32_t hueColour(int number) {
    constexpr std::array<double, 5> brightnesses{255, 165, 127, 76, 38};
    constexpr double hueStep = 15;
    const int ten = number / 10;
    const double hue = (ten - 1) * hueStep;
    const double bright = brightnesses[static_cast<std::size_t>(number % 10 / 2)];
    const double weakest = number % 2 != 0 ? 0.5 : 0;
    std::uint32_t colour = 0;
    for (const double middle : {0.0, 120.0, 240.0}) {
        const double away = std::fabs(std::remainder(hue - middle, 360));
        const double share = std::clamp(2 - away / 60, 0.0, 1.0);
        const double channel = bright * (weakest + (1 - weakest) * share);
        colour = colour << 8 | static_cast<std::uint32_t>(channel);
    }
    return colour;
}

} // namespace

std::uint32_t colourOfNumber(int number) {
    if (number < 0 || number >= firstGrey + static_cast<int>(greys.size()))
        return 0;
    if (number < firstHue)
        return plainColours[static_cast<std::size_t>(number)];
    if (number < firstGrey)
        return hueColour(number);
    return greys[static_cast<std::size_t>(number - firstGrey)];
}

} // namespace torvik::dxf
