// SPDX-License-Identifier: MIT
#include "prepare/source/source_options.h"

#include <algorithm>

namespace torvik {

std::optional<LengthUnit> lengthUnit(std::string_view name) {
    const auto* const found = std::find(lengthUnitNames.begin(), lengthUnitNames.end(), name);
    if (found == lengthUnitNames.end())
        return {};
    return static_cast<LengthUnit>(found - lengthUnitNames.begin());
}

} // namespace torvik
