// SPDX-License-Identifier: MIT
// The kinds of things in DXF drawings: how each is drawn, or why it is not.
#pragma once

#include "prepare/dxf/figures.h"

#include <string_view>

namespace torvik::dxf {

struct Kind {
    std::string_view name;
    Drawn (*draw)(const Entity&); // none for what is left out
    std::string_view reason;      // why it is
};

// nullptr for kinds that this program does not know and for those that hold others.
const Kind* findKind(std::string_view name);

// Reasons, as the report names them.
inline constexpr std::string_view hiddenLayers = "things on layers that are off or frozen";
inline constexpr std::string_view hiddenThings = "hidden things";
inline constexpr std::string_view paperThings = "things on the paper's side";
inline constexpr std::string_view tiltedThings = "things in space (3D)";
inline constexpr std::string_view missingBlocks = "uses of blocks that the file does not hold";

} // namespace torvik::dxf
