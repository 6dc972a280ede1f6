// SPDX-License-Identifier: MIT
// Lengths of a picture with their units, in user units. How many of them make an inch the picture
// says (size.h); percentages count of the viewport.
#pragma once

#include <optional>
#include <string_view>

namespace torvik::svg {

inline constexpr double mmPerInch = 25.4;
inline constexpr double usualFontSize = 16;

enum class Along { width, height, diagonal };

// What lengths depend on.
struct LengthRules {
    double pixelsPerInch = 96;
    double width = 0; // of the viewport
    double height = 0;
    double fontSize = usualFontSize;

    // The length that percentages count of.
    double whole(Along along) const;
};

// None where the text is no length.
std::optional<double> lengthOf(std::string_view text, const LengthRules& rules, double whole);

// Whether a length has a unit that is the same on every screen: mm, cm, in, pt, pc, Q.
bool hasRealUnit(std::string_view text);

} // namespace torvik::svg
