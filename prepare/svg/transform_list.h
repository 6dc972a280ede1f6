// SPDX-License-Identifier: MIT
// Lists of transforms: matrix, translate, scale, rotate (also about a centre), skewX, skewY.
#pragma once

#include "prepare/affine.h"

#include <optional>
#include <string_view>

namespace torvik::svg {

// All of the list as one map; none where it cannot be understood. Angles are degrees or have their
// unit, lengths are user units.
std::optional<Affine> transformOf(std::string_view text);

} // namespace torvik::svg
