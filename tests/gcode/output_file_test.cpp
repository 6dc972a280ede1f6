// SPDX-License-Identifier: MIT
#include "base/files.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "tests/base/temporary_folder.h"
#include "tests/gcode/job_to_write.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

TEST(WriteFile, ReportsAFailureOnce) {
    // The buffer of the output is filled by the second and flushed at the end by the first.
    for (const std::size_t nameLength : {std::size_t{0}, std::size_t{300000}}) {
        JobToWrite work("SP1;");
        work.job.answers.gstrHeader[headerPartName] = std::string(nameLength, 'x');
        EXPECT_EQ(WriteFile(work.job, work.tools, targetMaskor, 1, "/dev/full", work.logger),
                  WriteOutcome::failed);
        EXPECT_EQ(work.reports, "/dev/full: the file cannot be written: No space left on device;");
    }
}

TEST(WriteFile, TellsWhichFileFailsAndLeavesTheOther) {
    const TemporaryFolder folder;
    const auto program = folder.file("oprg1", std::string(300, 'x'));
    std::filesystem::create_directory(sideTextPath(program));
    JobToWrite work("SP1;");
    EXPECT_EQ(WriteFile(work.job, work.tools, targetWinNc, 1, program, work.logger),
              WriteOutcome::failed);
    EXPECT_TRUE(work.reports.starts_with(utf8FromPath(sideTextPath(program)) + ": "))
        << work.reports;
    EXPECT_TRUE(readWholeFile(program, 1000).ends_with("M30\r\n%\r\n")) << "and nothing of before";
}

TEST(ProposedFileName, ReplacesThreeCharacters) {
    EXPECT_EQ(proposedFileName(dialectFor(targetMaskor), "/jobs/gear.hpgl", 7), "gear.hmxc");
    EXPECT_EQ(proposedFileName(dialectFor(targetKestra), "ab", 7), "iso");
}

} // namespace
} // namespace torvik
