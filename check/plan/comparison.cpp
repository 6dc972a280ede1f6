// SPDX-License-Identifier: MIT
#include "check/plan/comparison.h"

#include <algorithm>

namespace torvik::check {
namespace {

constexpr std::size_t farthestAdded = 64; // items of a program that are looked through
constexpr std::size_t mostGaps = 16;      // the last ones, to which a program may come back
constexpr std::size_t surely = 3;         // items that follow and agree

} // namespace

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

void Comparison::run() {
    while (hasAsked() || hasDone()) {
        if (m_isInGap && m_i == m_gapEnd)
            returnFromGap();
        else if (fitsAt(m_i, m_j))
            compare();
        else
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

// The program goes on with a later item of the job.
bool Comparison::passOver(bool isAlike) {
    if (isAlike && m_done.wayTo(m_j).empty())
        return false; // it has not gone on to another pass, it has stayed at a wrong height
    const auto later = m_index.next(m_done.first(m_j), m_i + 1);
    if (!later || (m_isInGap && *later >= m_gapEnd))
        return false;
    const bool goesOn = agree(*later, m_j, isAlike ? surely : 1);
    const bool isExchanged = !isAlike && fitsAt(m_i, m_j + 1);
    if (!goesOn && !isExchanged)
        return false;
    m_gaps.push_back({m_i, *later, lineAt(0)});
    m_i = *later;
    m_isAfterFault = true;
    return true;
}

// The program brings what has been passed over.
bool Comparison::comeBack(bool isAlike) {
    if (m_isInGap || isAlike)
        return false;
    const std::size_t looked = std::min(m_gaps.size(), mostGaps);
    for (Gap& gap : std::span(m_gaps).last(looked)) {
        const auto found = m_index.next(m_done.first(m_j), gap.first);
        if (!found || *found >= gap.end)
            continue;
        std::size_t count = 1;
        while (*found + count < gap.end && fitsAt(*found + count, m_j + count))
            ++count;
        const Gap rest{*found + count, gap.end, gap.line};
        m_findings.moved(*found, *found + count, m_done.lineOf(m_j));
        gap.end = *found;
        m_goOnAt = m_i;
        m_i = *found;
        m_gapEnd = *found + count;
        m_isInGap = true;
        m_isAfterFault = true;
        m_gaps.push_back(rest);
        return true;
    }
    return false;
}

void Comparison::returnFromGap() {
    m_i = m_goOnAt;
    m_isInGap = false;
    m_isAfterFault = true;
}

// The program brings what it has brought before, and goes on behind it.
bool Comparison::leaveOutRepeated() {
    if (m_j < m_notRepeatedTo)
        return false;
    const auto before = m_index.previous(m_done.first(m_j), m_i);
    if (!before)
        return false;
    std::size_t count = 1;
    while (*before + count < m_i && fitsAt(*before + count, m_j + count))
        ++count;
    const bool goesOn = hasAsked() ? fitsAt(m_i, m_j + count) : m_j + count <= m_done.size();
    if (goesOn)
        leaveOut(m_j + count, true);
    else
        m_notRepeatedTo = m_j + count;
    return goesOn;
}

// The program goes on with the item behind some that are not part of the job.
bool Comparison::leaveOutAdded() {
    if (!hasAsked()) {
        leaveOut(m_j + 1, false);
        return true;
    }
    for (std::size_t more = 1; more <= farthestAdded; ++more)
        if (fitsAt(m_i, m_j + more) && agree(m_i, m_j + more, 1)) {
            leaveOut(m_j + more, false);
            return true;
        }
    return false;
}

void Comparison::leaveOut(std::size_t end, bool isRepeated) {
    if (m_addedEnd != m_j || m_areRepeated != isRepeated) {
        endAdded();
        m_addedFrom = m_j;
        m_areRepeated = isRepeated;
    }
    m_j = m_addedEnd = end;
    m_isAfterFault = true;
}

void Comparison::endAdded() {
    if (m_addedFrom < m_addedEnd)
        m_findings.added(m_addedFrom, m_addedEnd, m_areRepeated);
    m_addedFrom = m_addedEnd;
}

// The item stands there, but is another one than asked for.
void Comparison::takeForOther(bool isAlike) {
    const AskedItem item = m_asked.at(m_i);
    if (item.group->isDrilled != m_done.isHole(m_j)) {
        m_gaps.push_back({m_i, m_i + 1, m_done.lineOf(m_j)});
        if (item.group->isDrilled)
            leaveOut(m_j + 1, false);
        else
            ++m_j; // a way down without its cut
        ++m_i;
        m_isAfterFault = true;
        return;
    }
    m_isOther = !isAlike && !item.group->isDrilled;
    if (m_isOther)
        m_findings.otherCut(item, m_done.first(m_j));
    compare();
}

void Comparison::compare() {
    const AskedItem item = m_asked.at(m_i);
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

void Comparison::compareWay(const AskedItem& item) {
    const Move& first = m_done.first(m_j);
    const MoveSpan done = m_done.wayTo(m_j);
    const bool goesOn = done.empty() && item.beginsAtLast && item.groupNumber < m_nextGroup;
    const bool isThere = item.pass == nullptr || isSameNumber(first.from.z, item.pass->z);
    if (goesOn && isThere && item.pass != nullptr) {
        m_otherZ = unknown;
        return;
    }
    const double before = m_done.heightBefore(m_j);
    m_way.begin(before == m_otherZ ? m_askedZ : before, m_tool, m_speed);
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
    const double before = m_done.heightBefore(m_j);
    m_way.begin(before == m_otherZ ? m_askedZ : before, m_tool, m_speed);
    for (std::size_t group = m_nextGroup; group < m_asked.groups().size(); ++group)
        m_way.prepare(m_asked.groups()[group]);
    m_way.finish();
    const Difference difference = differenceOf(m_way.moves(), m_done.wayTo(m_j));
    if (!difference.isNone() && !m_isAfterFault)
        m_findings.otherWay(nullptr, difference, lineAt(difference.place));
}

} // namespace torvik::check
