// SPDX-License-Identifier: MIT
// How both go on where they part: an item that is passed over, one that comes later, twice or
// unasked, and one that stands there but is another one.
#include "check/plan/comparison.h"

#include <algorithm>

namespace torvik::check {
namespace {

constexpr std::size_t farthestAdded = 64; // items of a program that are looked through
constexpr std::size_t mostGaps = 16;      // the last ones, to which a program may come back
constexpr std::size_t surely = 3;         // items that follow and agree

} // namespace

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
    compare(m_asked.at(m_i));
}

} // namespace torvik::check
