// SPDX-License-Identifier: MIT
#include "check/pass.h"

#include <algorithm>
#include <tuple>

namespace torvik::check {
namespace {

bool isNear(double a, double b) {
    return std::fabs(a - b) < lengthStep / 2;
}

// In thousandths of a mm, so that equal texts are equal.
auto keyOf(const Move& cut) {
    const auto whole = [](double length) {
        return std::isfinite(length) ? std::lround(length / lengthStep) : -1;
    };
    return std::tuple(cut.kind, whole(cut.from.x), whole(cut.from.y), whole(cut.to.x),
                      whole(cut.to.y), whole(cut.centre.x), whole(cut.centre.y));
}

bool precedes(const Move* a, const Move* b) {
    return keyOf(*a) < keyOf(*b);
}

// For each beginning of the pass, how many of its last cuts are its first ones, too.
std::vector<std::size_t> repeats(const Pass& pass) {
    std::vector<std::size_t> longest(pass.cuts.size(), 0);
    for (std::size_t i = 1, same = 0; i < pass.cuts.size(); ++i) {
        while (same > 0 && !isSameWay(*pass.cuts[i], *pass.cuts[same]))
            same = longest[same - 1];
        if (isSameWay(*pass.cuts[i], *pass.cuts[same]))
            ++same;
        longest[i] = same;
    }
    return longest;
}

} // namespace

std::vector<Section> sectionsOf(const Moves& moves) {
    std::vector<Section> sections(1);
    for (const Move& move : moves) {
        if (move.kind == MoveKind::tool || move.kind == MoveKind::spindleOn)
            sections.emplace_back();
        if (!move.isCut())
            continue;
        Section& section = sections.back();
        if (section.empty() || !isSameHeight(section.back().z, move.to.z))
            section.push_back({move.to.z, {}});
        section.back().cuts.push_back(&move);
    }
    return sections;
}

bool isSameWay(const Move& a, const Move& b) {
    return a.kind == b.kind && isNear(a.to.x, b.to.x) && isNear(a.to.y, b.to.y) &&
           (!a.isArc() || (isNear(a.centre.x - a.from.x, b.centre.x - b.from.x) &&
                           isNear(a.centre.y - a.from.y, b.centre.y - b.from.y)));
}

bool startAlike(const Move& a, const Move& b) {
    // A cut may start where the one before it ended, a thousandth beside its own start.
    constexpr double most = 2.5 * lengthStep;
    return !(std::fabs(a.from.x - b.from.x) > most || std::fabs(a.from.y - b.from.y) > most);
}

std::size_t commonCuts(const Pass& first, const Pass& second) {
    const auto longest = repeats(second);
    std::size_t same = 0;
    for (const Move* cut : first.cuts) {
        while (same > 0 && (same == second.cuts.size() || !isSameWay(*cut, *second.cuts[same])))
            same = longest[same - 1];
        if (isSameWay(*cut, *second.cuts[same]))
            ++same;
    }
    return same;
}

std::size_t sharedCuts(const Pass& first, const Pass& second) {
    std::vector<const Move*> sorted = first.cuts;
    std::sort(sorted.begin(), sorted.end(), precedes);
    return static_cast<std::size_t>(
        std::count_if(second.cuts.begin(), second.cuts.end(), [&](const Move* cut) {
            return std::binary_search(sorted.begin(), sorted.end(), cut, precedes);
        }));
}

} // namespace torvik::check
