// SPDX-License-Identifier: MIT
// The endings of the drawings that can be prepared, small and without the dot.
#pragma once

#include <array>
#include <string_view>

namespace torvik {

inline constexpr std::array<std::string_view, 4> plotterKinds{"plt", "hpgl", "hpg", "plo"};
// Those that are no plotter's language.
inline constexpr std::array<std::string_view, 2> pictureKinds{"svg", "dxf"};

} // namespace torvik
