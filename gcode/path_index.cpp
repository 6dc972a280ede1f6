// SPDX-License-Identifier: MIT
#include "gcode/path_index.h"

#include "base/numbers.h"

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
    // A little wide: the exact comparison below decides.
    const double reach = 2 * radiusTolerance;
    const auto first =
        std::lower_bound(sorted.begin(), sorted.end(), radius - reach,
                         [&](std::int16_t i, double limit) { return radiusOf(i) < limit; });
    PathSubscripts found;
    for (auto at = first; at != sorted.end() && radiusOf(*at) <= radius + reach; ++at)
        if (singleDistance(radiusOf(*at), radius) < radiusTolerance)
            found.push_back(*at);
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace torvik
