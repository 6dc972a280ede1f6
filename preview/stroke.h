// SPDX-License-Identifier: MIT
// A straight piece of what a round tool leaves. Lengths are pixels.
#pragma once

#include <cstdint>

namespace torvik {

// From a point to itself it is a disc, else its ends are cut off, `longer` behind its two points.
struct ToolStroke {
    float fromX;
    float fromY;
    float toX;
    float toY;
    float radius; // half its width
    float longer;
    std::uint32_t colour; // 0xFFRRGGBB

    bool isDisc() const { return fromX == toX && fromY == toY; }
    // No pixel farther than this from the way between its points is touched.
    float reach() const { return radius + longer + 1; }
    ToolStroke movedBy(float x, float y) const {
        return {fromX + x, fromY + y, toX + x, toY + y, radius, longer, colour};
    }
};

// The first pixel whose middle does not lie before the place, or one beyond both ends of `count`.
inline int firstPixel(float place, int count) {
    if (place < 0)
        return 0;
    if (place > static_cast<float>(count))
        return count;
    constexpr float middle = 0.5F;
    return static_cast<int>(place + middle);
}

} // namespace torvik
