// SPDX-License-Identifier: MIT
// Which paths a pen or a hole size machines, found without walking all paths for each.
#pragma once

#include "job/job.h"

#include <array>
#include <vector>

namespace torvik {

// Subscripts of gudtPaths in file order.
using PathSubscripts = std::vector<std::int16_t>;

class PathIndex {
public:
    explicit PathIndex(const Job& job);

    // The paths of a pen, 1 to 8.
    const PathSubscripts& ofPen(std::int16_t pen) const;
    // Those of them whose radius lies within less than the radius tolerance of the given one. A
    // circle that lies so between two sizes belongs to both.
    PathSubscripts ofRadius(std::int16_t pen, float radius);

private:
    const Job& m_job;
    std::array<PathSubscripts, penCount + 1> m_ofPen;
    std::array<PathSubscripts, penCount + 1> m_byRadius; // sorted on first use
};

} // namespace torvik
