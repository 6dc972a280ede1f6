// SPDX-License-Identifier: MIT
#include "preview/thin_patterns.h"

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

template <typename Distance>
ThinPatterns::Row rowOf(float radius, const Distance& distance) {
    ThinPatterns::Row row;
    for (int i = 0; i < ThinPatterns::pixels; ++i) {
        const float depth = radius + 0.5F - distance(static_cast<float>(i - ThinPatterns::before));
        row[static_cast<std::size_t>(i)] =
            static_cast<std::uint8_t>(std::lround(255 * std::clamp(depth, 0.0F, 1.0F)));
    }
    return row;
}

} // namespace

ThinPatterns::ThinPatterns(float radius) : m_radius(radius) {
    for (std::size_t i = 0; i < slopes; ++i) {
        const float slant = std::hypot(1.0F, static_cast<float>(i) / (slopes - 1));
        for (std::size_t place = 0; place < places; ++place) {
            const float middle = static_cast<float>(place) / places;
            m_lines[i][place] =
                rowOf(radius, [&](float x) { return std::fabs(x - middle) / slant; });
        }
    }
    for (std::size_t place = 0; place < m_discs.size(); ++place) {
        const std::size_t column = place % discPlaces;
        const std::size_t row = place / discPlaces;
        const float middleX = static_cast<float>(column) / discPlaces;
        const float middleY = static_cast<float>(row) / discPlaces;
        for (std::size_t y = 0; y < discRows; ++y) {
            const float down = static_cast<float>(y) - rowsAbove - middleY;
            m_discs[place][y] =
                rowOf(radius, [&](float x) { return std::hypot(x - middleX, down); });
        }
    }
}

} // namespace torvik
