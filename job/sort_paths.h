// SPDX-License-Identifier: MIT
// Sorts paths by a number of each.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace torvik {

// The places of the keys, from 0, in drawing order: ascending by key, equal keys as they came.
std::vector<std::size_t> SortPaths(std::span<const float> keys);

} // namespace torvik
