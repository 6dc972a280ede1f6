// SPDX-License-Identifier: MIT
// The unit of a DXF drawing.
#pragma once

#include "prepare/source/source_options.h"

#include <optional>
#include <string_view>

namespace torvik::dxf {

struct Unit {
    std::string_view name; // "inches"
    double mm = 1;
};

// Of the number that a drawing names its unit by; none for 0 and those that nobody mills in.
std::optional<Unit> unitOfNumber(int number);
Unit unitOf(LengthUnit unit);

} // namespace torvik::dxf
