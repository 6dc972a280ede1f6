// SPDX-License-Identifier: MIT
// The colours that have names in pictures and style sheets ("teal"), as 0xRRGGBB.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace torvik::svg {

// The name in small letters.
std::optional<std::uint32_t> namedColour(std::string_view name);

} // namespace torvik::svg
