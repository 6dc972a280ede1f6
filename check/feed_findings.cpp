// SPDX-License-Identifier: MIT
#include "base/picture.h"
#include "check/finders.h"
#include "check/limits.h"

#include <algorithm>
#include <array>

namespace torvik::check {
namespace {

constexpr double slowestFeed = 1; // mm/min; what is slower is unusual

// The last three moves of one kind to one height. The one in the middle is odd where it has another
// feed than the two beside it, which have one.
class Neighbours {
public:
    void clear() { m_last = {}; }

    // The odd one, nullptr where there is none.
    const Move* take(const Move& move) {
        if (m_last[2] != nullptr && !isSameHeight(m_last[2]->to.z, move.to.z))
            clear();
        m_last = {m_last[1], m_last[2], &move};
        const auto& [first, middle, last] = m_last;
        const bool isOdd = first != nullptr && first->feed == last->feed && // both are known
                           middle->feed != first->feed;
        return isOdd ? middle : nullptr;
    }

private:
    std::array<const Move*, 3> m_last{};
};

class Feeds {
public:
    Feeds(const Walked& walked, Findings& findings) : m_walked(walked), m_findings(findings) {}

    void find() {
        for (const Move& move : m_walked.moves) {
            if (move.isFed())
                fed(move);
            else if (move.kind == MoveKind::dwell)
                dwell(move);
            else if (move.kind == MoveKind::tool || move.kind == MoveKind::spindleOn)
                newSpeed();
        }
    }

private:
    void newSpeed() {
        m_cuts.clear();
        m_plunges.clear();
    }

    void fed(const Move& move) {
        const Move* const odd = (move.isCut() ? m_cuts : m_plunges).take(move);
        if (std::isnan(move.feed))
            m_findings.add(Kind::feedMissing, move.line);
        else if (move.feed <= 0)
            m_findings.add(Kind::feedZero, move.line);
        else if (move.feed < slowestFeed || move.feed > fastestFeed)
            findOdd(move);
        if (odd != nullptr && odd->feed >= slowestFeed && odd->feed <= fastestFeed)
            findOdd(*odd);
    }

    void findOdd(const Move& move) {
        m_findings.add(Kind::feedOdd, move.line, {formatFixed(move.feed, 1)});
    }

    void dwell(const Move& move) {
        if (move.value <= 0 || move.value > longestWait || move.to.z > 0)
            m_findings.add(Kind::dwellOdd, move.line,
                           {heightText(move.value), heightText(move.to.z)});
    }

    const Walked& m_walked;
    Findings& m_findings;
    Neighbours m_cuts;
    Neighbours m_plunges;
};

} // namespace

void findFeeds(const Walked& walked, Findings& findings) {
    Feeds(walked, findings).find();
}

} // namespace torvik::check
