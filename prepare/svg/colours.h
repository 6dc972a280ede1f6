// SPDX-License-Identifier: MIT
// Colours as pictures write them: by name, #rgb, #rgba, #rrggbb, #rrggbbaa, rgb(), rgba(), hsl(),
// hsla() with commas or blanks, transparent.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace torvik::svg {

struct Colour {
    std::uint32_t rgb = 0; // 0xRRGGBB
    double alpha = 1;      // 0 to 1

    bool operator==(const Colour&) const = default;
};

// None where the text is no colour. What follows the colour is passed over.
std::optional<Colour> colourOf(std::string_view text);

// A number of 0 to 1, also in hundredths; none where the text is neither.
std::optional<double> shareOf(std::string_view text);

} // namespace torvik::svg
