// SPDX-License-Identifier: MIT
#include "answers/digest.h"
#include "answers/import_drawing.h"
#include "answers/program_folder.h"
#include "answers/put_saved_data.h"
#include "answers/saved_names.h"
#include "base/errors.h"
#include "base/files.h"
#include "base/logger.h"
#include "base/user_folders.h"
#include "job/job.h"
#include "job/pens.h"
#include "tests/answers/workshop_tools.h"
#include "tests/base/temporary_folder.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

class SavedSettings : public testing::Test {
protected:
    static std::string bytesOf(const std::filesystem::path& path) {
        return readWholeFile(path, 1 << 20);
    }
    ImportResult import(const std::filesystem::path& drawing) {
        return importDrawing(job, drawing, tools, saved, logger);
    }

    TemporaryFolder folder;
    std::filesystem::path saved = folder.path() / "home" / "PlotSave";
    std::filesystem::path log = folder.path() / "test.log";
    int reports = 0;
    Logger logger{log, [this](const ErrorReport&) { ++reports; }};
    ToolList tools = workshopTools({9, 8, 7, 6, 5, 4, 3, 2, 1});
    Job job;
};

TEST_F(SavedSettings, WritesBackWhatItReadFromTheSamples) {
    for (const char* name : {"allpens", "bracket", "clockface", "gear", "nameplate"}) {
        const auto sample = std::filesystem::path(TORVIK_SAMPLES) / name;
        const std::string answers = bytesOf(std::filesystem::path(sample) += ".plx");
        const auto result = importDrawing(job, std::filesystem::path(sample) += ".plt", tools,
                                          TORVIK_SAMPLES, logger);
        EXPECT_EQ(result.saved.outcome, SavedOutcome::taken) << result.saved.damage;
        EXPECT_TRUE(job.answers.gblnSavedFound && job.output.gblnUnsaved) << name;
        ASSERT_TRUE(PutSavedData(job, tools, saved, logger)) << name;
        EXPECT_EQ(bytesOf(saved / (std::string(name) + ".plx")), answers) << name;
    }
}

TEST_F(SavedSettings, OffersTheAnswersForAnUnchangedDrawingOnly) {
    const auto drawing = folder.file("Größe.plt", "SP1;PD40,40;SP2;CI40;");
    EXPECT_EQ(import(drawing).saved.outcome, SavedOutcome::none);
    EXPECT_EQ(utf8FromPath(saved / pathFromUtf8("Größe.plx")), job.answers.gstrSavedFile);
    job.answers.gsngFeedFactor = 60;
    job.answers.gudtPens[2].blnDrill = true;
    job.answers.gudtSettings[3].sngDwell = 2;
    job.answers.gudtSettings[3].intTool = 4;
    rebuildOrder(job);
    job.answers.gintOrder[8] = -1; // holds no pen
    ASSERT_TRUE(PutSavedData(job, tools, saved, logger));
    EXPECT_TRUE(bytesOf(job.answers.gstrSavedFile)
                    .ends_with("\r\n1\r\n2\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n"));

    EXPECT_EQ(import(drawing).saved.outcome, SavedOutcome::taken);
    EXPECT_EQ(job.answers.gstrFeedUnits, "(mm/sec)");
    EXPECT_EQ(job.answers.gudtSettings[3].sngDwell, 2);
    EXPECT_TRUE(job.answers.gblnOrderSet);

    // The rest of the file is not even looked at for another drawing.
    std::ofstream(job.answers.gstrSavedFile, std::ios::app) << "garbage";
    folder.file("Größe.plt", "SP1;PD40,41;SP2;CI40;");
    EXPECT_EQ(import(drawing).saved.outcome, SavedOutcome::digestDiffers);
    EXPECT_FALSE(job.answers.gudtPens[2].blnDrill || job.answers.gblnSavedFound ||
                 job.answers.gblnOrderSet);
    EXPECT_FALSE(std::filesystem::exists(log));
}

TEST_F(SavedSettings, LogsADamagedFileAndLeavesTheJobAlone) {
    const auto drawing = folder.file("a.plt", "SP1;PD40,40;");
    import(drawing);
    ASSERT_TRUE(PutSavedData(job, tools, saved, logger));
    const std::string good = bytesOf(job.answers.gstrSavedFile);
    for (const std::string& bytes : {std::string(), good + "x", "\xEF\xBB\xBF" + good + "x"}) {
        std::ofstream(saved / "a.plx", std::ios::binary) << bytes;
        const ImportResult result = import(drawing);
        EXPECT_TRUE(result.imported);
        EXPECT_EQ(result.saved.outcome, SavedOutcome::damaged);
        const std::string line = bytes.empty() ? "1: " : "22: ";
        EXPECT_EQ(result.saved.damage.rfind(job.answers.gstrSavedFile + ", line " + line, 0), 0U)
            << result.saved.damage;
        EXPECT_FALSE(job.answers.gblnSavedFound);
        EXPECT_NE(bytesOf(log).find(result.saved.damage), std::string::npos);
    }
    // The next output puts the damaged file aside, and only that.
    for (int output = 1; output <= 2; ++output) {
        ASSERT_TRUE(PutSavedData(job, tools, saved, logger));
        EXPECT_EQ(bytesOf(saved / "a.plx.damaged"), "\xEF\xBB\xBF" + good + "x");
        EXPECT_EQ(bytesOf(saved / "a.plx"), good);
    }
    EXPECT_EQ(reports, 0);
    const auto named = folder.file("named.plx", "\xEF\xBB\xBF" + good);
    EXPECT_EQ(importDrawingWithAnswers(job, drawing, tools, named, logger).saved.outcome,
              SavedOutcome::taken);
}

TEST_F(SavedSettings, KeepsTheEarlierFileWhereSavingFails) {
    import(folder.file("a.plt", "SP1;PD40,40;"));
    ASSERT_TRUE(PutSavedData(job, tools, saved, logger));
    const std::string good = bytesOf(saved / "a.plx");
    job.answers.gsngSafeHeight = std::numeric_limits<float>::infinity();
    EXPECT_FALSE(PutSavedData(job, tools, saved, logger));
    job.answers.gsngSafeHeight = 1;
    job.answers.gudtSettings[1].intTool = 10;
    EXPECT_FALSE(PutSavedData(job, tools, saved, logger));
    job.answers.gudtSettings[1].intTool = 0;
    EXPECT_EQ(bytesOf(saved / "a.plx"), good);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(saved), {}), 1);

    EXPECT_FALSE(PutSavedData(job, tools, folder.file("file", "kept"), logger));
    EXPECT_EQ(bytesOf(folder.path() / "file"), "kept");
    std::filesystem::create_directory(folder.path() / "a.plx");
    EXPECT_FALSE(PutSavedData(job, tools, folder.path(), logger));
    EXPECT_EQ(reports, 4);
}

TEST_F(SavedSettings, RefusesADrawingAsAWhole) {
    std::string sizes; // with the pen's own group one more than a job can hold
    for (int radius = 1; radius <= 32767; ++radius)
        sizes += "PU0,0;CI" + std::to_string(radius) + ";";
    for (const std::string& text : {std::string("PD1,1"), "SP1;" + sizes}) {
        job.output.gblnUnsaved = true;
        EXPECT_FALSE(import(folder.file("a.plt", text)).imported);
        EXPECT_FALSE(job.output.gblnUnsaved);
        EXPECT_EQ(job.drawing.gudtPaths.count() + job.answers.gudtSettings.count() +
                      job.answers.gintPenCount,
                  0);
        EXPECT_EQ(job.drawing.gstrPlotFile + job.answers.gstrSavedFile + job.drawing.gstrDigest,
                  "");
    }
    EXPECT_EQ(reports, 2);
}

TEST_F(SavedSettings, DigestsAreMd5) {
    EXPECT_EQ(strDigestFile(folder.file("a", "message digest")),
              "f96b697d7cb7938d525a2f31aaf161d0");
    EXPECT_EQ(strDigestFile(folder.file("a", std::string(1'000'000, 'a'))),
              "7707d6ae4e027c70eea2a935c2296f21");
    EXPECT_THROW(strDigestFile(folder.path()), FileError);
}

TEST(SavedNames, AreMadeFromTheDrawingsName) {
    const struct {
        const char* drawing;
        const char* saved;
        const char* part;
    } rows[] = {
        {R"(C:\jobs\gear.plt)", "gear.plx", "gear"},
        {R"(/mnt/c:\jobs/a.b\gear)", "gplx", "gear"},
        {"/a/x:gear.plt", "x:gear.plx", "x:gear"},
        {"räü", "plx", "räü"},
        {"/x/.plt", ".plx", ".plt"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(savedFileName(row.drawing), row.saved) << row.drawing;
        EXPECT_EQ(proposedPartName(row.drawing), row.part) << row.drawing;
    }
}

TEST(ProgramFolder, IsTheUsersOwnWhereTheProgramsCannotBeWritten) {
    const TemporaryFolder folder;
    setenv("XDG_DATA_HOME", "/home/jo/data", 1);
    unsetenv("TORVIK_HOME");
    EXPECT_EQ(dataFolderFor(folder.path()), folder.path());
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
    EXPECT_EQ(dataFolderFor(folder.path() / "missing"), "/home/jo/data/Torvik");
    setenv("TORVIK_HOME", (folder.path() / "none" / "yet").c_str(), 1);
    EXPECT_EQ(programFolder(), folder.path() / "none" / "yet");
    EXPECT_EQ(savedSettingsFolder(), folder.path() / "none" / "yet" / "PlotSave");
    EXPECT_EQ(logFile("Torvik"), folder.path() / "none" / "yet" / "Torvik.log");
    EXPECT_EQ(sampleFolder(), executableFolder().parent_path() / "share/torvik/samples");
    setenv("TORVIK_HOME", folder.path().c_str(), 1);
    std::filesystem::create_directory(folder.path() / "Sample files");
    EXPECT_EQ(sampleFolder(), folder.path() / "Sample files");
    unsetenv("TORVIK_HOME");
}

} // namespace
} // namespace torvik
