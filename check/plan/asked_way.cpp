// SPDX-License-Identifier: MIT
#include "check/plan/asked_way.h"

namespace torvik::check {

bool isSameNumber(double a, double b) {
    constexpr double most = 1e-7;
    return std::fabs(a - b) < most;
}

bool isDone(const AskedMove& asked, const Move& done) {
    if (asked.kind != done.kind)
        return false;
    switch (asked.kind) {
    case MoveKind::rapidHeight:
        return isSameNumber(asked.z, done.to.z);
    case MoveKind::rapidAcross:
        return isSameNumber(asked.to.x, done.to.x) && isSameNumber(asked.to.y, done.to.y);
    case MoveKind::feedHeight:
        return isSameNumber(asked.z, done.to.z) && isSameNumber(asked.feed, done.feed);
    case MoveKind::tool:
    case MoveKind::spindleOn:
    case MoveKind::dwell:
        return isSameNumber(asked.value, done.value);
    default:
        return true;
    }
}

void AskedWay::begin(double z, double tool, double speed) {
    m_moves.clear();
    m_z = z;
    m_tool = tool;
    m_speed = speed;
}

void AskedWay::rapidTo(double z) {
    if (m_z == z)
        return;
    m_moves.push_back({.kind = MoveKind::rapidHeight, .to = {}, .z = z});
    m_z = z;
}

void AskedWay::feedTo(double z, double feed) {
    m_moves.push_back({.kind = MoveKind::feedHeight, .to = {}, .z = z, .feed = feed});
    m_z = z;
}

// To where tools are changed, the spindle stopped.
void AskedWay::raise() {
    rapidTo(m_asked.heights().toolChange);
    if (m_stopsSpindle)
        m_moves.push_back({.kind = MoveKind::spindleOff, .to = {}});
}

void AskedWay::turn(double speed) {
    m_moves.push_back({.kind = MoveKind::spindleOn, .to = {}, .value = speed});
    m_speed = speed;
}

void AskedWay::prepare(const PlanGroup& group) {
    const AskedHeights& heights = m_asked.heights();
    const bool isFirst = std::isnan(m_tool) && std::isnan(m_speed);
    if (isFirst || group.tool != m_tool) {
        // A program begins at the tool change height without saying so.
        const double z = isFirst ? heights.toolChange : m_z;
        if (z <= heights.rapidDown)
            rapidTo(heights.safe);
        if (!isFirst || z <= heights.rapidDown || z == heights.safe)
            raise();
        m_moves.push_back({.kind = MoveKind::tool, .to = {}, .value = group.tool});
        m_tool = group.tool;
    } else if (group.speed != m_speed) {
        rapidTo(heights.safe);
        rapidTo(heights.toolChange);
    } else {
        return;
    }
    turn(group.speed);
    rapidTo(heights.safe);
}

void AskedWay::goTo(const AskedItem& item) {
    const AskedHeights& heights = m_asked.heights();
    const bool isTooDeep = item.pass != nullptr && m_z < item.pass->z;
    if (item.group->isDrilled || !item.beginsAtLast || isTooDeep)
        rapidTo(heights.safe);
    if (!item.beginsAtLast)
        m_moves.push_back({.kind = MoveKind::rapidAcross, .to = item.element->start});
    if (m_z > heights.rapidDown)
        rapidTo(heights.rapidDown);
    if (item.pass != nullptr && m_z > item.pass->z)
        feedTo(item.pass->z, item.group->feedDown);
}

void AskedWay::drill(const PlanGroup& group) {
    for (const StepDown& peck : group.steps) {
        if (m_z > peck.z)
            feedTo(peck.z, group.feedDown);
        if (!group.pecks && &peck != &group.steps.back())
            continue;
        if (group.dwells)
            m_moves.push_back({.kind = MoveKind::dwell, .to = {}, .value = group.dwell});
        rapidTo(m_asked.heights().rapidDown);
    }
}

void AskedWay::finish() {
    rapidTo(m_asked.heights().safe);
    raise();
}

Difference differenceOf(std::span<const AskedMove> asked, MoveSpan done) {
    std::size_t same = 0;
    while (same < asked.size() && same < done.size() && isDone(asked[same], *done[same]))
        ++same;
    asked = asked.subspan(same);
    done = done.subspan(same);
    while (!asked.empty() && !done.empty() && isDone(asked.back(), *done.back())) {
        asked = asked.first(asked.size() - 1);
        done = done.first(done.size() - 1);
    }
    return {asked, done, same};
}

} // namespace torvik::check
