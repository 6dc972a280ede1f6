// SPDX-License-Identifier: MIT
#include "gcode/path_index.h"

#include "job/hole_sizes.h"
#include "job/sort_paths.h"

#include <algorithm>

namespace torvik {

PathIndex::PathIndex(const Job& job) : m_job(job) {
    for (long i = 1; i <= job.drawing.gintPathCount; ++i) {
        const std::int16_t pen = job.drawing.gudtPaths[i].intPen;
        if (pen >= 1 && pen <= penCount)
            m_ofPen[static_cast<std::size_t>(pen)].push_back(static_cast<std::int16_t>(i));
    }
}

const PathSubscripts& PathIndex::ofPen(std::int16_t pen) const {
    return m_ofPen[static_cast<std::size_t>(pen)];
}

PathSubscripts PathIndex::ofRadius(std::int16_t pen, float radius) {
    const auto radiusOf = [this](std::int16_t i) { return m_job.drawing.gudtPaths[i].sngRadius; };
    auto& sorted = m_byRadius[static_cast<std::size_t>(pen)];
    if (sorted.empty()) {
        const PathSubscripts& paths = ofPen(pen);
        std::vector<float> radii(paths.size());
        std::transform(paths.begin(), paths.end(), radii.begin(), radiusOf);
        sorted.reserve(paths.size());
        for (const std::size_t place : SortPaths(radii))
            sorted.push_back(paths[place]);
    }
    const auto [first, last] =
        rangeOfSize(sorted.begin(), sorted.end(), radius, isDrilledAt, radiusOf);
    PathSubscripts found(first, last);
    if (!std::is_sorted(found.begin(), found.end())) // sizes that are nearly alike
        std::sort(found.begin(), found.end());
    return found;
}

} // namespace torvik
