// SPDX-License-Identifier: MIT
#include "preview/stroke_shape.h"

#include <algorithm>

namespace torvik {
void StrokeShape::add(const ToolStroke& stroke, const ThinPatterns& thin) {
    const bool isThin = thin.suits(stroke.radius);
    if (stroke.isDisc())
        isThin ? addThinDisc(stroke, thin) : addDisc(stroke);
    else
        isThin ? addThinStrip(stroke, thin) : addStrip(stroke);
}

void StrokeShape::makeReady() {
    if (!m_hasTurned)
        return;
    m_hasTurned = false;
    for (int x = 0; x < side; ++x) {
        const std::uint8_t* const column = rowOf(m_turned, x);
        for (int first = 0; first < side; first += group) {
            if (isEmpty(column + first))
                continue;
            for (int y = first; y < first + group; ++y) {
                std::uint8_t& pixel = rowOf(m_cover, y)[x];
                pixel = std::max(pixel, column[y]);
            }
        }
    }
    m_turned.fill(0);
}

void StrokeShape::clear() {
    m_cover.fill(0);
    m_turned.fill(0);
    m_hasTurned = false;
}

} // namespace torvik
