// SPDX-License-Identifier: MIT
// Strokes of any width: each row between its ends is filled, and the pixels at the edges reckoned.
#include "preview/stroke_shape.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace torvik {
namespace {

constexpr int lanes = 8;      // pixels that are reckoned together
constexpr int unit = 122;     // steps of a pixel's length; all of a tile fits into 16 bits
constexpr int full = 120;     // steps from where a pixel counts as covered: rounding leaves no seam
constexpr float farOff = 130; // pixels, farther than any two of a row
constexpr int longRow = 5 * lanes;
constexpr float level = 1e-4F; // what an edge may fall across a pixel and never end a row
constexpr float smallDisc = 2;

using Lanes = std::array<std::int16_t, lanes>;

// How deep pixels lie within an edge: at (x, y) it is start + x * across + y * down pixels.
struct Edge {
    float start;
    float across;
    float down;

    float at(float y) const { return start + y * down; }
};

} // namespace

// A strip with its four edges, ready for the rows of the shape.
struct StrokeShape::Strip {
    int firstRow;
    int endRow;
    float lowX; // pixels that it touches
    float highX;
    std::array<Edge, 4> edges;
    std::array<Lanes, 4> steps;                                   // within some lanes
    std::array<std::array<std::int16_t, side / lanes>, 4> starts; // of each lanes
    std::array<std::array<std::int16_t, side>, 4> rows;           // at the left of each row
    std::array<float, side> low;                                  // pixels that a row touches
    std::array<float, side> high;

    // Its arrays are filled where they are used.
    explicit Strip(const ToolStroke& stroke);
    void cover(std::uint8_t* pixels, int y, int group) const;

private:
    void prepare(std::size_t number);
};

StrokeShape::Strip::Strip(const ToolStroke& stroke) {
    const auto& [fromX, fromY, toX, toY, radius, longer, colour] = stroke;
    const float length = std::sqrt((toX - fromX) * (toX - fromX) + (toY - fromY) * (toY - fromY));
    const float alongX = (toX - fromX) / length;
    const float alongY = (toY - fromY) / length;
    const float half = radius + 0.5F;
    const float beyond = longer + 0.5F;
    const float moreX = std::fabs(alongX) * beyond + std::fabs(alongY) * half;
    const float moreY = std::fabs(alongY) * beyond + std::fabs(alongX) * half;
    firstRow = firstPixel(std::min(fromY, toY) - moreY, side);
    endRow = firstPixel(std::max(fromY, toY) + moreY, side);
    lowX = std::max(std::min(fromX, toX) - moreX - 0.5F, 0.0F);
    highX = std::min(std::max(fromX, toX) + moreX - 0.5F, static_cast<float>(side - 1));
    if (firstRow >= endRow || lowX > highX) {
        endRow = firstRow;
        return;
    }
    // Pixels are reckoned at their middles.
    const float middleX = fromX - 0.5F;
    const float middleY = fromY - 0.5F;
    const float aside = middleX * -alongY + middleY * alongX;
    const float ahead = middleX * alongX + middleY * alongY;
    edges = {Edge{half + aside, alongY, -alongX}, Edge{half - aside, -alongY, alongX},
             Edge{beyond - ahead, alongX, alongY}, Edge{length + beyond + ahead, -alongX, -alongY}};
    std::fill(low.begin() + firstRow, low.begin() + endRow, lowX);
    std::fill(high.begin() + firstRow, high.begin() + endRow, highX);
    for (std::size_t i = 0; i < edges.size(); ++i)
        prepare(i);
}

void StrokeShape::Strip::prepare(std::size_t number) {
    const Edge edge = edges[number];
    for (int x = 0; x < lanes; ++x)
        steps[number][static_cast<std::size_t>(x)] =
            static_cast<std::int16_t>(std::lrintf(edge.across * static_cast<float>(unit * x)));
    const int groups = static_cast<int>(highX) / lanes + 1;
    for (int group = static_cast<int>(lowX) / lanes; group < groups; ++group)
        starts[number][static_cast<std::size_t>(group)] = static_cast<std::int16_t>(
            std::lrintf(edge.across * static_cast<float>(unit * lanes * group)));
    std::int16_t* const atLeft = rows[number].data();
    for (int y = firstRow; y < endRow; ++y)
        atLeft[y] = static_cast<std::int16_t>(
            std::clamp(edge.at(static_cast<float>(y)), -farOff, farOff) * unit);
    if (std::fabs(edge.across) < level)
        return;
    const float perPixel = -1 / edge.across;
    if (edge.across > 0)
        for (auto y = static_cast<std::size_t>(firstRow); y < static_cast<std::size_t>(endRow); ++y)
            low[y] = std::max(low[y], edge.at(static_cast<float>(y)) * perPixel);
    else
        for (auto y = static_cast<std::size_t>(firstRow); y < static_cast<std::size_t>(endRow); ++y)
            high[y] = std::min(high[y], edge.at(static_cast<float>(y)) * perPixel);
}

void StrokeShape::Strip::cover(std::uint8_t* pixels, int y, int group) const {
    const auto row = static_cast<std::size_t>(y);
    const auto number = static_cast<std::size_t>(group);
    const auto a = static_cast<std::int16_t>(rows[0][row] + starts[0][number]);
    const auto b = static_cast<std::int16_t>(rows[1][row] + starts[1][number]);
    const auto c = static_cast<std::int16_t>(rows[2][row] + starts[2][number]);
    const auto d = static_cast<std::int16_t>(rows[3][row] + starts[3][number]);
    for (std::size_t i = 0; i < lanes; ++i) {
        const auto across = std::min(static_cast<std::int16_t>(a + steps[0][i]),
                                     static_cast<std::int16_t>(b + steps[1][i]));
        const auto along = std::min(static_cast<std::int16_t>(c + steps[2][i]),
                                    static_cast<std::int16_t>(d + steps[3][i]));
        const auto depth = std::clamp<std::int16_t>(std::min(across, along), 0, full);
        const auto cover = static_cast<std::uint8_t>(static_cast<std::int16_t>(depth * 17) >> 3);
        pixels[i] = std::max(pixels[i], cover);
    }
}

void StrokeShape::addStrip(const ToolStroke& stroke) {
    const Strip strip(stroke);
    for (int y = strip.firstRow; y < strip.endRow; ++y)
        addStripRow(rowOf(m_cover, y), strip, y);
}

void StrokeShape::addStripRow(std::uint8_t* row, const Strip& strip, int y) {
    const float low = strip.low[static_cast<std::size_t>(y)];
    const float high = strip.high[static_cast<std::size_t>(y)];
    if (low > high)
        return;
    const int first = static_cast<int>(low) / lanes;
    const int end = static_cast<int>(high) / lanes + 1;
    int fillFirst = end;
    int fillEnd = end;
    if (high - low > longRow) {
        // Between its edges the row is covered without reckoning.
        float inLow = low;
        float inHigh = high;
        for (const Edge& edge : strip.edges) {
            const float within = edge.at(static_cast<float>(y)) - 1;
            if (std::fabs(edge.across) >= level) {
                float& bound = edge.across > 0 ? inLow : inHigh;
                const float place = -within / edge.across;
                bound = edge.across > 0 ? std::max(bound, place) : std::min(bound, place);
            } else if (within < 0) {
                inHigh = inLow - 1;
            }
        }
        if (inHigh - inLow > 2 * lanes) {
            fillFirst = static_cast<int>(inLow) / lanes + 1;
            fillEnd = static_cast<int>(inHigh) / lanes;
            std::memset(row + fillFirst * lanes, 0xFF,
                        static_cast<std::size_t>(fillEnd - fillFirst) * lanes);
        }
    }
    for (int number = first; number < fillFirst; ++number)
        strip.cover(row + number * lanes, y, number);
    for (int number = fillEnd; number < end; ++number)
        strip.cover(row + number * lanes, y, number);
}

void StrokeShape::addDisc(const ToolStroke& stroke) {
    const float x = stroke.fromX;
    const float y = stroke.fromY;
    const float radius = stroke.radius;
    const float outer = radius + 0.5F;
    const float inner = std::max(radius - 0.5F, 0.0F);
    const float falling = 1 / (2 * radius + 0.5F);
    const int end = firstPixel(y + outer, side);
    for (int line = firstPixel(y - outer, side); line < end; ++line) {
        const float down = static_cast<float>(line) + 0.5F - y;
        std::uint8_t* const row = rowOf(m_cover, line);
        const float half = std::sqrt(std::max(outer * outer - down * down, 0.0F));
        const float within = std::sqrt(std::max(inner * inner - down * down, 0.0F));
        const int first = firstPixel(x - half, side);
        const int last = firstPixel(x + half, side);
        const int fillFirst = std::max(first, firstPixel(x - within, side));
        const int fillEnd = std::min(last, firstPixel(x + within, side));
        const auto cover = [&](int from, int to) {
            for (int i = from; i < to; ++i) {
                const float across = static_cast<float>(i) + 0.5F - x;
                const float square = across * across + down * down;
                // A parabola is as good, but for small discs.
                const float depth = radius < smallDisc ? outer - std::sqrt(square)
                                                       : (outer * outer - square) * falling;
                const float part = std::clamp(depth * unit / full, 0.0F, 1.0F);
                row[i] = std::max(row[i], static_cast<std::uint8_t>(part * 255));
            }
        };
        cover(first, fillFirst);
        std::fill(row + fillFirst, row + std::max(fillFirst, fillEnd), std::uint8_t{0xFF});
        cover(std::max(fillFirst, fillEnd), last);
    }
}

} // namespace torvik
