// SPDX-License-Identifier: MIT
#include "check/plan/plan.h"

#include "check/plan/comparison.h"

namespace torvik::check {

void findPlan(const Walked& walked, const Job& job, const ToolList& tools, Findings& findings,
              const std::stop_token& stop) {
    const Asked asked(job, tools, walked.target(), walked.moves.size() + 1);
    const Done done(walked.moves);
    Comparison(asked, done, walked.target(), findings).run(stop);
}

FindPlan planOf(const Job& job, const ToolList& tools, const std::stop_token& stop) {
    return [&job, &tools, stop](const Walked& walked, Findings& findings) {
        findPlan(walked, job, tools, findings, stop);
    };
}

Report checkProgramOfJob(std::string_view program, std::string_view sideText, const Job& job,
                         const ToolList& tools, const Target* target, const std::stop_token& stop) {
    return checkProgram(program, sideText, target, planOf(job, tools, stop), stop);
}

} // namespace torvik::check
