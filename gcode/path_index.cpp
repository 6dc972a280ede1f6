// SPDX-License-Identifier: MIT
#include "gcode/path_index.h"

#include "job/hole_sizes.h"

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
        sorted = ofPen(pen);
        std::sort(sorted.begin(), sorted.end(),
                  [&](std::int16_t a, std::int16_t b) { return radiusOf(a) < radiusOf(b); });
    }
    const auto [first, last] =
        rangeOfSize(sorted.begin(), sorted.end(), radius, isDrilledAt, radiusOf);
    PathSubscripts found(first, last);
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace torvik
