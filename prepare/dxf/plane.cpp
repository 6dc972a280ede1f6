// SPDX-License-Identifier: MIT
#include "prepare/dxf/plane.h"

#include <cmath>

namespace torvik::dxf {

std::optional<Affine> planeOf(const Entity& entity) {
    constexpr int axisCode = 210;
    constexpr double straight = 1e-6; // of an axis of length 1
    const Point sideways{entity.number(axisCode, 0), entity.number(axisCode + 10, 0)};
    const double up = entity.number(axisCode + 20, 1);
    if (!(length(sideways) <= straight * std::fabs(up)))
        return {};
    return up < 0 ? scaled(-1, 1) : Affine{};
}

} // namespace torvik::dxf
