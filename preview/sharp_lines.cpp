// SPDX-License-Identifier: MIT
#include "preview/sharp_lines.h"

#include "job/records.h"

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

constexpr double straight = 0.01; // what a level line may rise
constexpr double steps = 16;      // of places that are told apart, in a pixel

bool isWithin(const std::vector<float>& middles, double step) {
    return step >= 0 && step < static_cast<double>(middles.size());
}

} // namespace

SharpLines::Axis::Axis(int pixels)
    : m_middles(static_cast<std::size_t>(std::max(pixels, 0) * steps)) {}

// Ends that are off by a rounding find the line, too.
void SharpLines::Axis::addLine(double place) {
    const double below = std::floor(place * steps);
    for (const double step : {below, below + 1})
        if (isWithin(m_middles, step))
            m_middles[static_cast<std::size_t>(step)] = static_cast<float>(std::floor(place) + 0.5);
}

double SharpLines::Axis::shiftOf(double place) const {
    const double step = std::round(place * steps);
    const float middle = isWithin(m_middles, step) ? m_middles[static_cast<std::size_t>(step)] : 0;
    return middle == 0 ? 0 : middle - place;
}

SharpLines::SharpLines(const std::vector<Path>& paths, const PictureView& view, int width,
                       int height)
    : m_columns(width), m_rows(height) {
    for (const Path& path : paths) {
        if (path.intType != straightLine)
            continue;
        const ScreenPoint start = view.point(path.sngStartX, path.sngStartY);
        const ScreenPoint end = view.point(path.sngEndX, path.sngEndY);
        if (std::fabs(end.x - start.x) < straight)
            m_columns.addLine(start.x);
        if (std::fabs(end.y - start.y) < straight)
            m_rows.addLine(start.y);
    }
}

void SharpLines::align(Points& line) const {
    const auto shiftOf = [this](ScreenPoint p) {
        return ScreenPoint{m_columns.shiftOf(p.x), m_rows.shiftOf(p.y)};
    };
    const ScreenPoint first = shiftOf(line.front());
    const ScreenPoint last = shiftOf(line.back());
    const ScreenPoint none{0, 0};
    if (line.size() < 2 || (first == none && last == none))
        return;
    const double count = static_cast<double>(line.size() - 1);
    for (std::size_t i = 0; i < line.size(); ++i) {
        const double share = static_cast<double>(i) / count;
        line[i].x += std::lerp(first.x, last.x, share);
        line[i].y += std::lerp(first.y, last.y, share);
    }
}

} // namespace torvik
