// SPDX-License-Identifier: MIT
#include "tests/gcode/job_to_write.h"
#include "trial/trial.h"

namespace torvik {
namespace {

std::string worstOf(const TriedProgram& tried) {
    std::string texts;
    for (const check::Finding& finding : tried.findings.byLine())
        if (check::rowOf(finding.kind).level >= check::Level::wrong)
            texts += std::string(check::rowOf(finding.kind).name) + ";";
    return texts;
}

// Black is cut in three passes, Red drilled with two pecks a hole.
JobToWrite goodJob() {
    JobToWrite good("SP1;PU400,400;PD2400,400;SP2;PU800,800;CI120;PU1600,800;CI120;");
    good.change("1.depth=3 1.step=1 2/1.tool=2 2/1.depth=4 2/1.step=2");
    return good;
}

TEST(Trial, AGoodJobIsTriedForEachTarget) {
    const JobToWrite work = goodJob();
    Logger logger;
    for (const Dialect& dialect : dialects()) {
        const TriedProgram tried = tryProgram(work.job, work.tools, dialect, 1, logger);
        ASSERT_TRUE(tried.isTried()) << dialect.name;
        EXPECT_EQ(worstOf(tried), "") << dialect.name;
        EXPECT_EQ(tried.lines, lineEndsIn(tried.program));
        EXPECT_EQ(tried.sideText.empty(), !dialect.needsNumber()) << dialect.name;
        ASSERT_EQ(tried.groups.size(), 2U);
        const auto& [black, red] = std::tie(tried.groups[0], tried.groups[1]);
        EXPECT_EQ(black.name + ", " + black.tool, "Black – cut, T1 6.0 mm Slot drill");
        EXPECT_EQ(red.name + ", " + red.tool, "Red – 6.0 mm holes, T7 3.0 mm Drill");
        EXPECT_EQ(std::tuple(black.passes, black.holes), std::tuple(3, 0));
        EXPECT_EQ(std::tuple(red.passes, red.holes), std::tuple(2, 2));
        // Three passes of 50 mm at 300 mm/min, 3, 4 and 5 mm down at 100, and what the quick
        // moves, starts and stops cost on top.
        EXPECT_NEAR(black.minutes, 0.5 + 0.12 + 0.12, 0.06);
        EXPECT_NEAR(tried.minutes, black.minutes + red.minutes, 0.1);
        for (const check::Move& move : tried.moves)
            if (move.kind == check::MoveKind::tool && move.line > black.firstLine + 3) {
                EXPECT_NEAR(move.line, red.firstLine, 4);
            }
    }
}

TEST(Trial, WhatIsDangerousIsFoundOnce) {
    const struct {
        const char* name;
        const char* drawing;
        const char* changes;
        const char* billet;
        const char* found;
    } rows[]{
        {"a shallow pen begins where a deep one ended", "SP1;PU400,400;PD800,400;SP2;PD800,800;",
         "1.depth=5 2.depth=2", "", "deeper-than-asked;"},
        {"a depth of 600 mm", "SP1;PU400,400;PD800,400;", "1.depth=600 1.step=1", "",
         "depth-high;"},
        {"the same in a billet of 6 mm", "SP1;PU400,400;PD800,400;", "1.depth=600 1.step=1", "6",
         "billet-depth;"},
    };
    for (const auto& row : rows) {
        JobToWrite work(row.drawing);
        work.change(row.changes);
        work.job.answers.gstrHeader[headerBilletZ] = row.billet;
        EXPECT_EQ(
            worstOf(tryProgram(work.job, work.tools, dialectFor(targetMaskor), 0, work.logger)),
            row.found)
            << row.name;
    }
    JobToWrite work = goodJob();
    work.change("safe=-10 toolChange=-10 down=-10");
    const TriedProgram low =
        tryProgram(work.job, work.tools, dialectFor(targetMaskor), 0, work.logger);
    EXPECT_EQ(low.findings.count(check::Kind::heightLow), 3U);
}

TEST(Trial, WhatCannotBeTriedSaysWhy) {
    JobToWrite work = goodJob();
    const auto stateOf = [&](const std::stop_token& stop = {}) {
        return tryProgram(work.job, work.tools, dialectFor(targetMaskor), 0, work.logger, stop)
            .state;
    };
    std::stop_source stopped;
    stopped.request_stop();
    EXPECT_EQ(stateOf(stopped.get_token()), TriedProgram::State::cancelled);
    work.change("1.depth=2100 1.step=0.001");
    EXPECT_EQ(stateOf(), TriedProgram::State::tooLong);
    EXPECT_EQ(work.reports, "");
    work.change("1.depth=3 1.step=-1");
    EXPECT_EQ(stateOf(), TriedProgram::State::failed);
    EXPECT_NE(work.reports, "");
}

} // namespace
} // namespace torvik
