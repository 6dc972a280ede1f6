// SPDX-License-Identifier: MIT
#include "job/sort_paths.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace torvik {

std::vector<std::size_t> SortPaths(std::span<const float> keys) {
    // Beside each key its place, so that sorting looks at no other memory, and equal keys have an
    // order.
    std::vector<std::pair<float, std::uint32_t>> entries;
    entries.reserve(keys.size());
    for (const float key : keys)
        entries.emplace_back(key, static_cast<std::uint32_t>(entries.size()));
    std::sort(entries.begin(), entries.end());
    std::vector<std::size_t> order;
    order.reserve(keys.size());
    for (const auto& [key, place] : entries)
        order.push_back(place);
    return order;
}

} // namespace torvik
