// SPDX-License-Identifier: MIT
// Says what a program does otherwise than its job asks for. The words of the values stand here, the
// sentences in the table of the kinds.
#pragma once

#include "check/findings.h"
#include "check/plan/asked_way.h"

namespace torvik::check {

class PlanFindings {
public:
    PlanFindings(const Asked& asked, const Done& done, Findings& findings)
        : m_asked(asked), m_done(done), m_findings(findings) {}

    // Items of the job, from `first` to before `end`, that the program leaves out or brings later;
    // `line` is where they should stand, or where they come.
    void lost(std::size_t first, std::size_t end, std::uint32_t line);
    void moved(std::size_t first, std::size_t end, std::uint32_t line);
    // Items of the program that the job does not ask for, or not a second time.
    void added(std::size_t first, std::size_t end, bool isRepeated);

    // A cut that is another one than the item.
    void otherCut(const AskedItem& item, const Move& cut);
    // A cut at another height. `pen` is the one whose cut ended where this one begins and that made
    // it so deep, nullptr where there is none.
    void otherHeight(const AskedItem& item, double z, std::uint32_t line, const Pen* pen);
    void otherFeed(double asked, const Move& done);
    // An arc that is longer or shorter than the drawing's.
    void otherSweep(const AskedItem& item, const Move& arc);

    // Moves on the way to an item, the end of the program without one.
    void otherWay(const PlanGroup* group, const Difference& difference, std::uint32_t line);
    // Moves of a hole.
    void otherPecks(const AskedItem& item, const Difference& difference, MoveSpan hole);

private:
    bool otherTool(const PlanGroup* group, const Difference& difference, std::uint32_t line);
    void add(Kind kind, std::uint32_t line, std::vector<std::string> values);
    std::string nameOf(const PlanGroup& group) const;

    const Asked& m_asked;
    const Done& m_done;
    Findings& m_findings;
};

} // namespace torvik::check
