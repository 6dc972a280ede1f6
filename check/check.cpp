// SPDX-License-Identifier: MIT
#include "check/check.h"

#include "base/stopping.h"
#include "check/opening_lines.h"

namespace torvik::check {

RunningCheck::RunningCheck(const Target& target, std::size_t lines, const std::stop_token& stop)
    : m_stop(stop), m_reader(target, lines, m_report.findings, stop) {
    m_report.target = &target;
}

Report RunningCheck::finish(std::string_view sideText, const FindPlan& findPlan) {
    Program read = m_reader.finish();
    Findings& findings = m_report.findings;
    if (m_report.target->commentOpener == 0)
        read.header = readSideText(sideText);
    findStructure(read, findings);
    const Walked walked{read, read.moves, learnHeights(read.moves)};
    for (const auto find :
         {findMotion, findPlunges, findTools, findSpindle, findFeeds, findArcs, findBillet}) {
        endIfStopped(m_stop);
        find(walked, findings);
    }
    endIfStopped(m_stop);
    if (findPlan) {
        findPlan(walked, findings);
    } else {
        findPasses(walked, findings);
        findHoles(walked, findings);
    }
    m_report.summary = summaryOf(read.moves);
    m_report.moves = std::move(read.moves);
    return std::move(m_report);
}

Report checkProgram(std::string_view program, std::string_view sideText, const Target* target,
                    const FindPlan& findPlan, const std::stop_token& stop) {
    if (target == nullptr)
        target = recogniseTarget(program);
    if (target == nullptr) {
        Report none;
        none.findings.add(Kind::opening, 1, {"none of the controls knows it"});
        return none;
    }
    RunningCheck check(*target, linesIn(program), stop);
    check.write(program);
    return check.finish(sideText, findPlan);
}

} // namespace torvik::check
