// SPDX-License-Identifier: MIT
#include "check/plan/plan.h"

#include "check/plan/comparison.h"

namespace torvik::check {

void findPlan(const Walked& walked, const Job& job, const ToolList& tools, Findings& findings) {
    const Asked asked(job, tools, walked.target(), walked.moves.size() + 1);
    const Done done(walked.moves);
    Comparison(asked, done, walked.target(), findings).run();
}

Report checkProgramOfJob(std::string_view program, std::string_view sideText, const Job& job,
                         const ToolList& tools, const Target* target) {
    return checkProgram(program, sideText, target, [&](const Walked& walked, Findings& findings) {
        findPlan(walked, job, tools, findings);
    });
}

} // namespace torvik::check
