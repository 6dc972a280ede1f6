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

TEST(ProposedFileName, ReplacesThreeCharacters) {
    EXPECT_EQ(proposedFileName(dialectFor(targetMaskor), "/jobs/gear.hpgl", 7), "gear.hmxc");
    EXPECT_EQ(proposedFileName(dialectFor(targetKestra), "ab", 7), "iso");
}

} // namespace
} // namespace torvik
