// SPDX-License-Identifier: MIT
#include "check/sense/changes.h"

#include <algorithm>

namespace torvik::check {
namespace {

// The tools that one pen takes, from its first to its last.
struct PenTools {
    std::int16_t pen;
    std::int16_t first;
    std::int16_t last;
};

std::vector<PenTools> toolsOfPens(const std::vector<AskedGroup>& asked) {
    std::vector<PenTools> pens;
    for (const AskedGroup& group : asked) {
        if (group.tool == nullptr)
            continue;
        const std::int16_t tool = group.settings.intTool;
        if (pens.empty() || pens.back().pen != group.group.pen)
            pens.push_back({group.group.pen, tool, tool});
        pens.back().last = tool;
    }
    return pens;
}

int changesBetween(const std::vector<PenTools>& pens) {
    int changes = 0;
    for (std::size_t i = 1; i < pens.size(); ++i)
        changes += pens[i - 1].last != pens[i].first ? 1 : 0;
    return changes;
}

} // namespace

int changesIn(const std::vector<AskedGroup>& asked) {
    int changes = 0;
    std::int16_t last = 0;
    for (const AskedGroup& group : asked) {
        if (group.tool == nullptr)
            continue;
        changes += last != 0 && last != group.settings.intTool ? 1 : 0;
        last = group.settings.intTool;
    }
    return changes;
}

// Eight pens have 40320 orders: all are tried.
int fewestChanges(const std::vector<AskedGroup>& asked) {
    std::vector<PenTools> pens = toolsOfPens(asked);
    const auto byPen = [](const PenTools& a, const PenTools& b) { return a.pen < b.pen; };
    const int withinPens = changesIn(asked) - changesBetween(pens);
    int fewest = changesBetween(pens);
    std::sort(pens.begin(), pens.end(), byPen);
    do {
        fewest = std::min(fewest, changesBetween(pens));
    } while (fewest > 0 && std::next_permutation(pens.begin(), pens.end(), byPen));
    return withinPens + fewest;
}

} // namespace torvik::check
