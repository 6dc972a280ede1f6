// SPDX-License-Identifier: MIT
#include "check/summary.h"

#include <algorithm>

namespace torvik::check {

Summary summaryOf(const Moves& moves) {
    Summary summary;
    int taken = 0;
    for (const Move& move : moves) {
        if (takesMaterial(move)) {
            summary.extents.add(extentsOf(move));
            summary.deepest = std::fmax(summary.deepest, -move.to.z);
        }
        if (move.kind != MoveKind::tool)
            continue;
        ++taken;
        const auto tool = std::isfinite(move.value) ? static_cast<int>(move.value) : 0;
        if (std::find(summary.tools.begin(), summary.tools.end(), tool) == summary.tools.end())
            summary.tools.push_back(tool);
    }
    summary.changes = std::max(taken - 1, 0);
    return summary;
}

} // namespace torvik::check
