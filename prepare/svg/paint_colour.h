// SPDX-License-Identifier: MIT
// Which colour a line or fill is seen in.
#pragma once

#include "prepare/svg/document.h"
#include "prepare/svg/style.h"

namespace torvik::svg {

struct SeenColour {
    std::uint32_t rgb = 0;
    bool isStandIn = false; // for a gradient or pattern
};

// None where nothing is seen. A gradient is seen as the middle of its colours, a pattern as black.
std::optional<SeenColour> seenColour(const Paint& paint, double opacity, const Style& style,
                                     const Document& document);

} // namespace torvik::svg
