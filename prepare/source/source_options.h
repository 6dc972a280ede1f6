// SPDX-License-Identifier: MIT
// What the user may say about a source before it is read.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace torvik {

// Of a drawing that does not name its own.
enum class LengthUnit : std::uint8_t { mm, cm, m, inch };
inline constexpr std::array<std::string_view, 4> lengthUnitNames{"mm", "cm", "m", "inch"};

std::optional<LengthUnit> lengthUnit(std::string_view name);

struct SourceOptions {
    double roundTurn = 24;             // degrees; wider chords of a circle are reported
    std::map<std::string, int> pens{}; // "#rrggbb" in small letters, or "layer:NAME"
    bool byLayer = false; // each layer of a CAD drawing has a pen of its own, not each colour
    std::optional<double> dpi{};       // pixels to the inch of a picture, over what it says
    std::optional<LengthUnit> units{}; // of a CAD drawing, over what it says
    bool texts = true;                 // drawn with single strokes
    std::size_t segmentLimit = 4'000'000;
};

} // namespace torvik
