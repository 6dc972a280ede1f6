// SPDX-License-Identifier: MIT
// What the writer writes for good jobs, laid beside them.
#include "base/byte_sink.h"
#include "check/plan/plan.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "tests/check/random_job.h"

#include <gtest/gtest.h>
#include <set>

namespace torvik::check {
namespace {

TEST(RandomJobs, AreWrittenAsTheyAreAsked) {
    int n = 0;
    for (unsigned seed = 1; seed <= 250; ++seed) {
        const RandomJob random(seed);
        for (const Dialect& dialect : dialects()) {
            StringSink program;
            Logger muted;
            writeProgram(random.job, random.tools, dialect, 1, program, muted);
            const Report report = checkProgramOfJob(program.bytes(), {}, random.job, random.tools);
            for (const Finding& finding : report.findings.byLine())
                if (rowOf(finding.kind).level >= Level::look && ++n < 60)
                    ADD_FAILURE() << "seed " << seed << " " << dialect.name << " line "
                                  << finding.line << ": " << rowOf(finding.kind).name << ": "
                                  << sentenceOf(finding);
        }
    }
}

} // namespace
} // namespace torvik::check
