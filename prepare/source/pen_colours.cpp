// SPDX-License-Identifier: MIT
#include "prepare/source/pen_colours.h"

#include "job/job.h"
#include "job/pens.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace torvik {
namespace {

struct Lab {
    double lightness;
    double a;
    double b;
};

double linear(std::uint32_t channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

// The curve of lightness over light.
double lightnessOf(double light) {
    constexpr double darkest = 216.0 / 24389;
    return light > darkest ? std::cbrt(light) : (24389.0 / 27 * light + 16) / 116;
}

// Seen by daylight (D65), as screens are.
Lab toLab(std::uint32_t colour) {
    const double red = linear(colour >> 16 & 0xFFu);
    const double green = linear(colour >> 8 & 0xFFu);
    const double blue = linear(colour & 0xFFu);
    const double x =
        lightnessOf((0.4124564 * red + 0.3575761 * green + 0.1804375 * blue) / 0.95047);
    const double y = lightnessOf(0.2126729 * red + 0.7151522 * green + 0.0721750 * blue);
    const double z =
        lightnessOf((0.0193339 * red + 0.1191920 * green + 0.9503041 * blue) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double squaredDistance(const Lab& p, const Lab& q) {
    const double lightness = p.lightness - q.lightness;
    return lightness * lightness + (p.a - q.a) * (p.a - q.a) + (p.b - q.b) * (p.b - q.b);
}

// The pens' colours stand in a job as 0xBBGGRR.
std::uint32_t swapped(std::int32_t colour) {
    const auto bits = static_cast<std::uint32_t>(colour);
    return (bits & 0xFFu) << 16 | (bits & 0xFF00u) | (bits >> 16 & 0xFFu);
}

std::array<Lab, penCount> penColours() {
    Job job;
    SetColourDefinitions(job);
    std::array<Lab, penCount> colours{};
    for (int pen = 1; pen <= penCount; ++pen)
        colours[static_cast<std::size_t>(pen - 1)] =
            toLab(swapped(job.answers.gudtPens[pen].lngColour));
    return colours;
}

} // namespace

int nearestPen(std::uint32_t colour) {
    static const auto pens = penColours();
    const Lab wanted = toLab(colour);
    const auto* const nearest =
        std::min_element(pens.begin(), pens.end(), [&](const Lab& p, const Lab& q) {
            return squaredDistance(wanted, p) < squaredDistance(wanted, q);
        });
    return static_cast<int>(nearest - pens.begin()) + 1;
}

std::string colourName(std::uint32_t colour) {
    static constexpr std::string_view digits = "0123456789abcdef";
    std::string name = "#";
    for (int shift = 20; shift >= 0; shift -= 4)
        name += digits[colour >> shift & 0xFu];
    return name;
}

} // namespace torvik
