// SPDX-License-Identifier: MIT
#include "check/check.h"

#include "check/machine.h"
#include "check/opening_lines.h"
#include "check/program_reader.h"

namespace torvik::check {

Report checkProgram(std::string_view program, std::string_view sideText, const Target* target,
                    const FindPlan& findPlan) {
    Report report;
    Findings& findings = report.findings;
    report.target = target == nullptr ? recogniseTarget(program) : target;
    if (report.target == nullptr) {
        findings.add(Kind::opening, 1, {"none of the controls knows it"});
        return report;
    }
    Program read = readProgram(*report.target, program, findings);
    if (report.target->commentOpener == 0)
        read.header = readSideText(sideText);
    report.moves = walk(read);
    const Moves& moves = report.moves;
    findStructure(read, findings);
    const Walked walked{read, moves, learnHeights(moves)};
    for (const auto find :
         {findMotion, findPlunges, findTools, findSpindle, findFeeds, findArcs, findBillet})
        find(walked, findings);
    if (findPlan) {
        findPlan(walked, findings);
    } else {
        findPasses(walked, findings);
        findHoles(walked, findings);
    }
    report.summary = summaryOf(moves);
    return report;
}

} // namespace torvik::check
