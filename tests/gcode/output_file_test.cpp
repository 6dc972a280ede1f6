// SPDX-License-Identifier: MIT
#include "base/error_trap.h"
#include "base/errors.h"
#include "base/files.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "tests/base/temporary_folder.h"
#include "tests/gcode/job_to_write.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

TEST(WriteFile, ReportsAFailureOnce) {
    struct FullDisk final : ByteSink {
        void write(std::string_view) override { throw FileError("a", "full"); }
    } disk;
    // The buffer of the output is filled by the second and flushed at the end by the first.
    for (const std::size_t nameLength : {std::size_t{0}, std::size_t{300000}}) {
        JobToWrite work("SP1;");
        work.job.answers.gstrHeader[headerPartName] = std::string(nameLength, 'x');
        withErrorTrap(work.logger, {"WriteFile", "modHpgl"}, [&] {
            EXPECT_FALSE(
                writeProgram(work.job, work.tools, dialectFor(targetMaskor), 1, disk, work.logger));
        });
        EXPECT_EQ(work.reports, "a: full;");
    }
}

TEST(WriteFile, TellsWhichFileFailsAndLeavesBothOrNone) {
    const TemporaryFolder folder;
    JobToWrite work("SP1;");
    EXPECT_EQ(WriteFile(work.job, work.tools, targetWinCam, 1, folder.path(), work.logger),
              WriteOutcome::notOpened);
    EXPECT_EQ(work.reports, "");

    const auto program = folder.file("oprg1", "an earlier program");
    std::filesystem::create_directory(sideTextPath(program));
    EXPECT_EQ(WriteFile(work.job, work.tools, targetWinNc, 1, program, work.logger),
              WriteOutcome::failed);
    EXPECT_TRUE(work.reports.starts_with(utf8FromPath(sideTextPath(program)) + ": "))
        << work.reports;
    EXPECT_EQ(readWholeFile(program, 1000), "an earlier program");
}

TEST(WriteFile, LeavesNothingOfACancelledProgram) {
    const TemporaryFolder folder;
    const auto program = folder.file("part.mxc", "an earlier program");
    JobToWrite work("SP1;PD40,40;PU0,0");
    work.change("1.depth=1000 1.step=0.01"); // more than one piece of the output holds
    std::int64_t told = 0;
    EXPECT_EQ(WriteFile(work.job, work.tools, targetMaskor, 0, program, work.logger,
                        [&](std::int64_t lines) {
                            told = lines;
                            return false;
                        }),
              WriteOutcome::cancelled);
    EXPECT_GT(told, 1000);
    EXPECT_LT(told, programSize(work.job, work.tools, dialectFor(targetMaskor)).lines);
    EXPECT_EQ(readWholeFile(program, 1000), "an earlier program");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
    EXPECT_EQ(work.reports, "");
}

TEST(ProgramSize, EndsBehindTheMostLines) {
    JobToWrite work("SP1;PD40,40;SP2;PD80,0");
    work.change("2.depth=99999 2.step=0.001");
    const ProgramSize size = programSize(work.job, work.tools, dialectFor(targetMaskor));
    EXPECT_EQ(size.lines, mostLines + 1);
    EXPECT_EQ(size.longest.value().pen, 2);
}

TEST(ProposedFileName, ReplacesThreeCharacters) {
    EXPECT_EQ(proposedFileName(dialectFor(targetMaskor), "/jobs/gear.hpgl", 7), "gear.hmxc");
    EXPECT_EQ(proposedFileName(dialectFor(targetKestra), "ab", 7), "iso");
}

} // namespace
} // namespace torvik
