// SPDX-License-Identifier: MIT
#include "preview/scale_length.h"

#include <array>
#include <cmath>

namespace torvik {

double roundLength(double most) {
    if (!std::isfinite(most) || most <= 0)
        return 0;
    const double unit = std::pow(10, std::floor(std::log10(most)));
    for (const double times : std::array{5.0, 2.0})
        if (times * unit <= most)
            return times * unit;
    return unit;
}

} // namespace torvik
