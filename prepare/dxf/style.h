// SPDX-License-Identifier: MIT
// What a thing of a DXF drawing has from its layer or from the use of the block it stands in:
// colour, line type, and whether it is seen.
#pragma once

#include "prepare/dxf/document.h"

#include <cstdint>

namespace torvik::dxf {

struct Style {
    std::string_view layer = "0";
    std::uint32_t rgb = 0;
    std::string_view lineType;
    bool isOnShownLayer = true;

    bool isDashed() const;
};

// `around` is that of the use of the block, or the usual one.
Style styleOf(const Entity& entity, const Document& document, const Style& around);

} // namespace torvik::dxf
