// SPDX-License-Identifier: MIT
#include "preview/stroke_painter.h"

#include "base/threads.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace torvik {
namespace {

constexpr int side = StrokeTile::side;
constexpr std::size_t mostStrokes = 1 << 16; // that wait
constexpr std::size_t checkEach = 16;        // strokes, whether a tile is full
constexpr double flatTurn = 0.4;             // radians
constexpr double corner = 0.1;               // image pixels, what may stick out of a joint

// The tile that a place lies in, or one beside the picture.
int tileAt(float place, int count) {
    return static_cast<int>(std::floor(std::clamp(place / side, -1.0F, static_cast<float>(count))));
}

ScreenPoint towards(ScreenPoint from, ScreenPoint to, double length) {
    if (length == 0)
        return from;
    const double part = length / std::hypot(to.x - from.x, to.y - from.y);
    return {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
}

// By how much the chords of a curve run on at their joints, so that they meet without discs; 0
// where they need some. All chords of a path are as long and turn as much as the first.
double longerAtJoints(const Points& points, double radius) {
    if (points.size() < 3)
        return 0;
    const ScreenPoint a{points[1].x - points[0].x, points[1].y - points[0].y};
    const ScreenPoint b{points[2].x - points[1].x, points[2].y - points[1].y};
    const double turn = std::fabs(std::atan2(a.x * b.y - a.y * b.x, a.x * b.x + a.y * b.y));
    const double longer = 0.5 + radius * std::tan(turn / 2);
    const bool isFlat = turn < flatTurn && radius * turn * turn / 8 < corner;
    return isFlat && 2 * longer < std::hypot(a.x, a.y) ? longer : 0;
}

} // namespace

StrokePainter::StrokePainter(const Canvas& canvas, double thinWidth, std::stop_token stop,
                             int threads)
    : m_stop(std::move(stop)), m_threads(threads), m_columns((canvas.width + side - 1) / side),
      m_rows((canvas.height + side - 1) / side), m_thin(static_cast<float>(thinWidth / 2)) {
    m_tiles.reserve(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows));
    for (int row = 0; row < m_rows; ++row)
        for (int column = 0; column < m_columns; ++column)
            m_tiles.emplace_back(canvas, column * side, row * side);
    m_isFull.resize(m_tiles.size());
    m_tileStrokes.resize(m_tiles.size());
}

void StrokePainter::setColour(std::int32_t colour) {
    const auto value = static_cast<std::uint32_t>(colour);
    m_colour = 0xFF000000 | (value & 0xFF) << 16 | (value & 0xFF00) | (value >> 16 & 0xFF);
}

void StrokePainter::line(const Points& points, double width) {
    const double radius = width / 2;
    const double longer = longerAtJoints(points, radius);
    disc(points.front(), radius);
    for (std::size_t i = 1; i < points.size(); ++i) {
        ScreenPoint from = points[i - 1];
        ScreenPoint to = points[i];
        if (i == 1)
            from = towards(from, to, longer);
        if (i == points.size() - 1)
            to = towards(to, from, longer);
        if (from != to)
            add(from, to, radius, longer);
        if (longer == 0 || i == points.size() - 1)
            disc(points[i], radius);
    }
}

void StrokePainter::disc(ScreenPoint centre, double radius) {
    add(centre, centre, radius, 0);
}

void StrokePainter::add(ScreenPoint from, ScreenPoint to, double radius, double longer) {
    m_strokes.push_back({static_cast<float>(from.x), static_cast<float>(from.y),
                         static_cast<float>(to.x), static_cast<float>(to.y),
                         static_cast<float>(radius), static_cast<float>(longer), m_colour});
    if (m_strokes.size() == mostStrokes)
        paintStrokes();
}

std::size_t StrokePainter::tile(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
           static_cast<std::size_t>(column);
}

void StrokePainter::putIntoTiles(std::uint32_t number) {
    const ToolStroke& stroke = m_strokes[number];
    const float reach = stroke.reach();
    const float left = std::min(stroke.fromX, stroke.toX);
    const float right = std::max(stroke.fromX, stroke.toX);
    const float upper = std::min(stroke.fromY, stroke.toY);
    const float lower = std::max(stroke.fromY, stroke.toY);
    const int firstRow = std::max(tileAt(upper - reach, m_rows), 0);
    const int lastRow = std::min(tileAt(lower + reach, m_rows), m_rows - 1);
    for (int row = firstRow; row <= lastRow; ++row) {
        float low = left;
        float high = right;
        if (lower - upper > side && right - left > side) {
            // Only what lies within this row of tiles.
            const float slope = (stroke.toX - stroke.fromX) / (stroke.toY - stroke.fromY);
            const auto xAt = [&](float y) {
                return std::clamp(stroke.fromX + (y - stroke.fromY) * slope, left, right);
            };
            const float atTop = xAt(static_cast<float>(row * side) - reach);
            const float atBottom = xAt(static_cast<float>((row + 1) * side) + reach);
            low = std::min(atTop, atBottom);
            high = std::max(atTop, atBottom);
        }
        const int first = std::max(tileAt(low - reach, m_columns), 0);
        const int last = std::min(tileAt(high + reach, m_columns), m_columns - 1);
        for (int column = first; column <= last; ++column)
            if (!m_isFull[tile(column, row)])
                m_tileStrokes[tile(column, row)].push_back(number);
    }
}

void StrokePainter::paintStrokes() {
    for (std::uint32_t i = 0; i < m_strokes.size(); ++i)
        putIntoTiles(i);
    inThreads(static_cast<int>(m_tiles.size()), m_threads, [this](int number) {
        const auto place = static_cast<std::size_t>(number);
        StrokeTile& tile = m_tiles[place];
        std::vector<std::uint32_t>& strokes = m_tileStrokes[place];
        for (std::size_t i = 0; i < strokes.size() && !m_stop.stop_requested(); ++i) {
            tile.paint(m_strokes[strokes[i]], m_thin);
            if (i % checkEach == 0 && tile.isFull())
                break;
        }
        strokes.clear();
    });
    for (std::size_t i = 0; i < m_tiles.size(); ++i)
        m_isFull[i] = m_tiles[i].isFull();
    m_strokes.clear();
}

void StrokePainter::finish() {
    paintStrokes();
    if (m_stop.stop_requested())
        return;
    inThreads(static_cast<int>(m_tiles.size()), m_threads,
              [this](int number) { m_tiles[static_cast<std::size_t>(number)].finish(); });
}

} // namespace torvik
