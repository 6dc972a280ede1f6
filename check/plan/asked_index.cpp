// SPDX-License-Identifier: MIT
#include "check/plan/asked_index.h"

#include "check/plan/asked_way.h"

#include <algorithm>
#include <tuple>

namespace torvik::check {
namespace {

// Of elements that are drawn many times at one place only so many are looked at.
constexpr std::size_t mostAlike = 32;

bool isSamePoint(Point a, Point b) {
    return isSameNumber(a.x, b.x) && isSameNumber(a.y, b.y);
}

Point offsetOf(const Move& move) {
    return {move.centre.x - move.from.x, move.centre.y - move.from.y};
}

std::uint64_t mixed(std::uint64_t key, double length) {
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;
    const auto whole = std::isfinite(length) ? std::llround(length / lengthStep) : 0;
    key = (key ^ static_cast<std::uint64_t>(whole)) * factor;
    return key ^ (key >> 32U);
}

std::uint64_t keyOf(MoveKind kind, Point end, Point offset) {
    const bool isArc = kind != MoveKind::cutLine && kind != MoveKind::feedHeight;
    const std::uint64_t key = mixed(mixed(static_cast<std::uint64_t>(kind), end.x), end.y);
    return isArc ? mixed(mixed(key, offset.x), offset.y) : key;
}

std::uint64_t keyOf(const Move& first) {
    return keyOf(first.kind, {first.to.x, first.to.y}, offsetOf(first));
}

} // namespace

bool isSameElement(const AskedItem& item, const Move& first) {
    if (item.group->isDrilled || !first.isCut())
        return item.group->isDrilled && !first.isCut() &&
               isSamePoint(item.element->start, {first.to.x, first.to.y});
    const AskedElement& element = *item.element;
    return element.kind == first.kind && isSamePoint(element.end, {first.to.x, first.to.y}) &&
           (!first.isArc() || isSamePoint(element.offset, offsetOf(first)));
}

bool fits(const AskedItem& item, const Move& first) {
    return isSameElement(item, first) &&
           (item.pass == nullptr || isSameNumber(item.pass->z, first.to.z));
}

void AskedIndex::build() {
    const auto& groups = m_asked.groups();
    for (std::uint32_t g = 0; g < groups.size(); ++g) {
        const auto& elements = groups[g].elements;
        for (std::uint32_t e = 0; e < elements.size(); ++e) {
            const MoveKind kind = groups[g].isDrilled ? MoveKind::feedHeight : elements[e].kind;
            m_entries.push_back({keyOf(kind, elements[e].end, elements[e].offset), g, e});
        }
    }
    std::sort(m_entries.begin(), m_entries.end(), [](const Entry& a, const Entry& b) {
        return std::tie(a.key, a.group, a.element) < std::tie(b.key, b.group, b.element);
    });
}

template <typename Visit>
void AskedIndex::visitFitting(const Move& first, Visit visit) {
    if (m_entries.empty())
        build();
    const std::uint64_t key = keyOf(first);
    auto at = std::lower_bound(m_entries.begin(), m_entries.end(), key,
                               [](const Entry& entry, std::uint64_t k) { return entry.key < k; });
    for (std::size_t seen = 0; seen < mostAlike && at != m_entries.end() && at->key == key;
         ++seen, ++at) {
        const PlanGroup& group = m_asked.groups()[at->group];
        const std::size_t number = group.first + at->element;
        if (group.isDrilled) {
            visit(number);
            continue;
        }
        const auto deeper = [](const StepDown& pass, double z) { return pass.z > z + lengthStep; };
        auto pass = std::lower_bound(group.steps.begin(), group.steps.end(), first.to.z, deeper);
        for (; pass != group.steps.end() && isSameNumber(pass->z, first.to.z); ++pass)
            visit(number +
                  static_cast<std::size_t>(pass - group.steps.begin()) * group.elements.size());
    }
}

std::optional<std::size_t> AskedIndex::next(const Move& first, std::size_t from) {
    std::optional<std::size_t> best;
    visitFitting(first, [&](std::size_t number) {
        if (number >= from && (!best || number < *best) && fits(m_asked.at(number), first))
            best = number;
    });
    return best;
}

std::optional<std::size_t> AskedIndex::previous(const Move& first, std::size_t before) {
    std::optional<std::size_t> best;
    visitFitting(first, [&](std::size_t number) {
        if (number < before && (!best || number > *best) && fits(m_asked.at(number), first))
            best = number;
    });
    return best;
}

} // namespace torvik::check
