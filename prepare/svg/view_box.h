// SPDX-License-Identifier: MIT
// View boxes: which part of a picture's plane is shown in a viewport, and how it fits in.
#pragma once

#include "prepare/affine.h"

#include <optional>
#include <string_view>

namespace torvik::svg {

struct Rectangle {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

// Four numbers, the last two above 0; none else.
std::optional<Rectangle> viewBoxOf(std::string_view text);

// The map that shows the view box in the viewport as `preserveAspectRatio` says: "none", or an
// alignment ("xMidYMid" where it says nothing) with "meet" or "slice".
Affine viewBoxMap(const Rectangle& viewBox, const Rectangle& viewport, std::string_view aspect);

} // namespace torvik::svg
