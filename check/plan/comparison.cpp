// SPDX-License-Identifier: MIT
#include "check/plan/comparison.h"

#include "base/stopping.h"

#include <algorithm>

namespace torvik::check {
bool Comparison::fitsAt(std::size_t asked, std::size_t done) const {
    return asked < m_asked.size() && done < m_done.size() &&
           fits(m_asked.at(asked), m_done.first(done));
}

// Whether so many items behind the two fit, or both come to their end.
bool Comparison::agree(std::size_t asked, std::size_t done, std::size_t count) const {
    for (std::size_t k = 1; k <= count; ++k) {
        if (done + k >= m_done.size() || asked + k >= m_asked.size())
            return done + k >= m_done.size();
        if (!fitsAt(asked + k, done + k))
            return false;
    }
    return true;
}

void Comparison::run(const std::stop_token& stop) {
    while (hasAsked() || hasDone()) {
        endIfStopped(stop);
        if (m_isInGap && m_i == m_gapEnd)
            returnFromGap();
        else if (!compareNext())
            meetAgain();
    }
    endAdded();
    compareEnd();
    for (const Gap& gap : m_gaps)
        if (gap.first < gap.end)
            m_findings.lost(gap.first, gap.end, gap.line);
}

void Comparison::meetAgain() {
    if (!hasDone()) {
        m_gaps.push_back({m_i, m_isInGap ? m_gapEnd : m_asked.size(), lineAt(0)});
        m_i = m_gaps.back().end;
        m_isAfterFault = true;
        return;
    }
    const bool isAlike = hasAsked() && isSameElement(m_asked.at(m_i), m_done.first(m_j));
    if (passOver(isAlike) || comeBack(isAlike) || leaveOutRepeated())
        return;
    if (!isAlike && leaveOutAdded())
        return;
    takeForOther(isAlike);
}

// False where the next two items are not the same.
bool Comparison::compareNext() {
    if (!hasAsked() || !hasDone())
        return false;
    const AskedItem item = m_asked.at(m_i);
    if (!fits(item, m_done.first(m_j)))
        return false;
    compare(item);
    return true;
}

void Comparison::compare(const AskedItem& item) {
    compareWay(item);
    if (item.group->isDrilled)
        compareHole(item);
    else
        compareCut(item);
    m_nextGroup = std::max(m_nextGroup, item.groupNumber + 1);
    m_tool = item.group->tool;
    m_speed = item.group->speed;
    m_isAfterFault = m_isOther = false;
    ++m_i;
    ++m_j;
}

// The line of a move on the way, of the item behind the last one.
std::uint32_t Comparison::lineAt(std::size_t place) const {
    const MoveSpan way = m_done.wayTo(m_j);
    return place < way.size() ? way[place]->line : m_done.lineOf(m_j);
}

// From another height that has been told the way goes on as from the one asked for. Where it is the
// safe height itself the tool need not go up.
double Comparison::heightBefore() const {
    const double before = m_done.heightBefore(m_j);
    return before == m_otherZ && before != m_asked.heights().safe ? m_askedZ : before;
}

void Comparison::compareWay(const AskedItem& item) {
    const Move& first = m_done.first(m_j);
    const MoveSpan done = m_done.wayTo(m_j);
    const bool goesOn = done.empty() && item.beginsAtLast && item.groupNumber < m_nextGroup;
    const bool isThere = item.pass == nullptr || isSameNumber(first.from.z, item.pass->z);
    if (goesOn && isThere && item.pass != nullptr) {
        m_otherZ = unknown;
        return;
    }
    m_way.begin(heightBefore(), m_tool, m_speed);
    for (std::size_t group = m_nextGroup; group <= item.groupNumber; ++group)
        m_way.prepare(m_asked.groups()[group]);
    m_way.goTo(item);
    const Difference difference = differenceOf(m_way.moves(), done);
    m_isOther = m_isOther || !difference.isNone();
    if (!isThere)
        compareHeight(item, difference);
    else if (!difference.isNone() && !m_isAfterFault)
        m_findings.otherWay(item.group, difference, lineAt(difference.place));
    if (isThere)
        m_otherZ = unknown;
}

// A cut at another height than asked for; the moves that led there need no finding of their own.
void Comparison::compareHeight(const AskedItem& item, const Difference& way) {
    const Move& cut = m_done.first(m_j);
    const MoveSpan done = m_done.wayTo(m_j);
    const bool isTold = done.empty() && isSameNumber(cut.from.z, m_otherZ);
    m_otherZ = cut.from.z;
    if (isTold)
        return;
    const auto isChange = [](const AskedMove& move) { return move.kind == MoveKind::tool; };
    if (std::any_of(way.asked.begin(), way.asked.end(), isChange) && !m_isAfterFault)
        m_findings.otherWay(item.group, way, cut.line);
    const Pen* pen = nullptr;
    if (done.empty() && item.beginsAtLast && m_i > 0)
        pen = m_asked.at(m_i - 1).group->pen;
    const bool isLedThere = !done.empty() && done.back()->kind == MoveKind::feedHeight;
    m_findings.otherHeight(item, cut.from.z, isLedThere ? done.back()->line : cut.line,
                           pen == item.group->pen ? nullptr : pen);
}

void Comparison::compareCut(const AskedItem& item) {
    const Move& cut = m_done.first(m_j);
    m_askedZ = item.pass->z;
    const bool isAskedFeed = isSameNumber(cut.feed, item.pass->feed);
    if (!isAskedFeed && !isSameNumber(cut.feed, m_otherFeed))
        m_findings.otherFeed(item.pass->feed, cut);
    m_otherFeed = isAskedFeed ? unknown : cut.feed;
    if (cut.isArc() && item.isInFirstPass && !m_isOther)
        m_findings.otherSweep(item, cut);
}

void Comparison::compareHole(const AskedItem& item) {
    const MoveSpan hole = m_done.work(m_j);
    m_way.begin(hole.front()->from.z, m_tool, m_speed);
    m_way.drill(*item.group);
    const Difference difference = differenceOf(m_way.moves(), hole);
    if (!difference.isNone())
        m_findings.otherPecks(item, difference, hole);
    m_askedZ = m_asked.heights().rapidDown;
    m_otherZ = m_otherFeed = unknown;
}

void Comparison::compareEnd() {
    m_way.begin(heightBefore(), m_tool, m_speed);
    for (std::size_t group = m_nextGroup; group < m_asked.groups().size(); ++group)
        m_way.prepare(m_asked.groups()[group]);
    m_way.finish();
    const Difference difference = differenceOf(m_way.moves(), m_done.wayTo(m_j));
    if (!difference.isNone() && !m_isAfterFault)
        m_findings.otherWay(nullptr, difference, lineAt(difference.place));
}

} // namespace torvik::check
