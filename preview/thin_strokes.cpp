// SPDX-License-Identifier: MIT
// Strokes of the thin width, by patterns.
#include "preview/stroke_shape.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace torvik {
namespace {

using Patterns = ThinPatterns;

constexpr int bits = 16; // behind the point
constexpr float one = 1 << bits;
constexpr int placeBits = 5;
static_assert(1 << placeBits == Patterns::places);
constexpr float farAway = 8192; // pixels; no row comes back from there

void cover(std::uint8_t* pixels, const Patterns::Row& pattern) {
    // A copy and plain pointers, so that the compiler takes all pixels at once.
    Patterns::Row row;
    std::memcpy(row.data(), pixels, row.size());
    std::uint8_t* const kept = row.data();
    const std::uint8_t* const added = pattern.data();
    for (std::size_t i = 0; i < row.size(); ++i)
        kept[i] = kept[i] < added[i] ? added[i] : kept[i];
    std::memcpy(pixels, row.data(), row.size());
}

} // namespace

// A pattern for each row; for each column where the strip is rather level.
void StrokeShape::addThinStrip(const ToolStroke& stroke, const Patterns& thin) {
    auto [fromX, fromY, toX, toY, radius, longer, colour] = stroke;
    const bool isTurned = std::fabs(toX - fromX) > std::fabs(toY - fromY);
    if (isTurned) {
        std::swap(fromX, fromY);
        std::swap(toX, toY);
        m_hasTurned = true;
    }
    if (toY < fromY) {
        std::swap(fromX, toX);
        std::swap(fromY, toY);
    }
    const float slope = (toX - fromX) / (toY - fromY);
    const float more = longer / std::sqrt(1 + slope * slope);
    const int first = firstPixel(fromY - more, side);
    const int end = firstPixel(toY + more, side);
    const float start = fromX - 0.5F + (static_cast<float>(first) + 0.5F - fromY) * slope;
    int place = static_cast<int>(std::clamp(start, -farAway, farAway) * one) +
                (1 << (bits - placeBits - 1));
    const int step = static_cast<int>(slope * one);
    const auto& patterns = thin.line(std::fabs(slope));
    std::uint8_t* row = rowOf(isTurned ? m_turned : m_cover, first) - Patterns::before;
    for (int y = first; y < end; ++y, place += step, row += rowLength) {
        const int pixel = place >> bits;
        if (pixel < Patterns::before - margin || pixel >= side + Patterns::before)
            continue;
        const int part = place >> (bits - placeBits) & (Patterns::places - 1);
        cover(row + pixel, patterns[static_cast<std::size_t>(part)]);
    }
}

void StrokeShape::addThinDisc(const ToolStroke& stroke, const Patterns& thin) {
    constexpr int places = Patterns::discPlaces;
    constexpr int before = 16; // pixels, so that no place is below 0
    const auto placeOf = [](float middle) {
        const float place = std::clamp<float>(middle + (before - 0.5F), 0, before + side + before);
        constexpr float half = 0.5F;
        return static_cast<int>(place * places + half);
    };
    const int x = placeOf(stroke.fromX);
    const int y = placeOf(stroke.fromY);
    const int left = x / places - before - Patterns::before;
    const int top = y / places - before - Patterns::rowsAbove;
    if (left < -margin || left >= side)
        return;
    const auto& rows = thin.disc(x % places, y % places);
    for (int i = 0; i < Patterns::discRows; ++i)
        if (top + i >= 0 && top + i < side)
            cover(rowOf(m_cover, top + i) + left, rows[static_cast<std::size_t>(i)]);
}

} // namespace torvik
