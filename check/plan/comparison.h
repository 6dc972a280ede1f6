// SPDX-License-Identifier: MIT
// Walks the items of a job and those of a program side by side. Where they part it looks for the
// place where they meet again, so that one fault is found once.
#pragma once

#include "check/plan/asked_index.h"
#include "check/plan/plan_findings.h"

#include <stop_token>

namespace torvik::check {

class Comparison {
public:
    Comparison(const Asked& asked, const Done& done, const Target& target, Findings& findings)
        : m_asked(asked), m_done(done), m_index(asked), m_way(asked, target),
          m_findings(asked, done, findings) {}

    // Raises Cancelled where `stop` asks for it.
    void run(const std::stop_token& stop);

private:
    // Items of the job that have been passed over, from `first` to before `end`.
    struct Gap {
        std::size_t first;
        std::size_t end;
        std::uint32_t line; // where they should stand in the program
    };

    bool hasAsked() const { return m_i < m_asked.size(); }
    bool hasDone() const { return m_j < m_done.size(); }
    bool fitsAt(std::size_t asked, std::size_t done) const;
    bool agree(std::size_t asked, std::size_t done, std::size_t count) const;

    void meetAgain();
    bool passOver(bool isAlike);
    bool comeBack(bool isAlike);
    bool leaveOutRepeated();
    bool leaveOutAdded();
    void takeForOther(bool isAlike);
    void leaveOut(std::size_t end, bool isRepeated);
    void returnFromGap();
    void endAdded();

    bool compareNext();
    void compare(const AskedItem& item);
    std::uint32_t lineAt(std::size_t place) const;
    double heightBefore() const;
    void compareWay(const AskedItem& item);
    void compareHeight(const AskedItem& item, const Difference& way);
    void compareCut(const AskedItem& item);
    void compareHole(const AskedItem& item);
    void compareEnd();

    const Asked& m_asked;
    const Done& m_done;
    AskedIndex m_index;
    AskedWay m_way;
    PlanFindings m_findings;

    std::size_t m_i = 0; // item of the job
    std::size_t m_j = 0; // item of the program
    std::vector<Gap> m_gaps;
    // Where the walk goes on when what came later than asked for has been gone through.
    std::size_t m_gapEnd = 0;
    std::size_t m_goOnAt = 0;
    bool m_isInGap = false;
    // Added items that have not been told yet.
    std::size_t m_addedFrom = 0;
    std::size_t m_addedEnd = 0;
    bool m_areRepeated = false;
    std::size_t m_notRepeatedTo = 0; // up to here it has been looked for in vain

    bool m_isAfterFault = false; // so that the way to here tells nothing new
    bool m_isOther = false;      // the item, or the way to it, is another one than asked for
    std::size_t m_nextGroup = 0; // the first whose tool has not been asked for
    double m_tool = unknown;     // as asked for last
    double m_speed = unknown;
    double m_askedZ = unknown;    // of the last item
    double m_otherZ = unknown;    // another height that has been told
    double m_otherFeed = unknown; // the same for a feed
};

} // namespace torvik::check
