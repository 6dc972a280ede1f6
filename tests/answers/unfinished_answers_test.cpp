// SPDX-License-Identifier: MIT
#include "answers/import_drawing.h"
#include "answers/unfinished_answers.h"
#include "answers/unfinished_place.h"
#include "base/errors.h"
#include "base/files.h"
#include "base/logger.h"
#include "job/job.h"
#include "tests/answers/workshop_tools.h"
#include "tests/base/temporary_folder.h"

#include <functional>
#include <gtest/gtest.h>

namespace torvik {
namespace {

// Pen 1 a line, pen 2 circles of two sizes, pen 4 a line. Groups: 1; 2 with 3 and 4; 5.
constexpr const char* drawingText = "SP1;PD400,0;SP2;PU400,400;CI60;PU800,400;CI100;SP4;PD0,800;";

class UnfinishedAnswers : public testing::Test {
protected:
    void import(const std::string& text = drawingText) {
        importDrawing(job, folder.file("a.plt", text), tools, saved, logger);
    }
    // Answers everything; pen 2 is drilled.
    void answerAll() {
        job.answers.gsngSafeHeight = 5;
        job.answers.gsngFeedFactor = 1;
        job.answers.gudtPens[2].blnDrill = true;
        for (int group = 1; group <= 5; ++group)
            job.answers.gudtSettings[group] = {1, 900, 100, 50, 25, 3, 1, 0.2F, 0, false, true};
        job.answers.gblnOrderSet = true;
        for (const auto line : {headerDate, headerDesigner, headerPartName, headerMaterial})
            job.answers.gstrHeader[line] = "x";
    }
    void keep(const std::string& designer) {
        job.answers.gstrHeader[headerDesigner] = designer;
        unfinished.keep(job, tools, {3, 2, 1}, {"5.", "\"\""});
    }
    std::string found() {
        const auto at = findUnfinished(job);
        return at ? at->answers.header[headerDesigner] : "none";
    }

    TemporaryFolder folder;
    std::filesystem::path saved = folder.path() / "PlotSave";
    std::filesystem::path file = saved / "a.plx.unfinished";
    Logger logger;
    ToolList tools = workshopTools({7, 3});
    Job job;
    UnfinishedFile unfinished;
};

TEST_F(UnfinishedAnswers, AreKeptFromTheFirstChangeUntilTheyAreForgotten) {
    import();
    unfinished.begin();
    unfinished.settle(job, tools);
    unfinished.keep(job, tools, {5, 0, 0}, {}); // walked on, answered nothing
    EXPECT_FALSE(std::filesystem::exists(saved));
    keep("Jo");
    keep("Jo \"J\"");
    EXPECT_EQ(found(), "Jo \"J\"");
    EXPECT_EQ(findUnfinished(job)->place, (WizardPlace{3, 2, 1}));
    EXPECT_EQ(findUnfinished(job)->boxes, (std::vector<std::string>{"5.", "\"\""}));
    std::filesystem::remove(file); // by another copy
    keep("Jo \"J\"");
    EXPECT_EQ(found(), "Jo \"J\"");
    keep(""); // as it was, and kept all the same
    EXPECT_EQ(found(), "");
    unfinished.forget();
    EXPECT_FALSE(std::filesystem::exists(file));

    keep("Jo");
    unfinished.begin(findUnfinished(job)); // a later run
    keep("Ann");
    EXPECT_EQ(found(), "Ann");
    UnfinishedFile other;
    other.begin(findUnfinished(job));
    keep("Jo");
    other.forget(); // of another copy: not what stands there
    EXPECT_EQ(found(), "Jo");
    import(std::string(drawingText) + "PD1,1;");
    EXPECT_EQ(found(), "none");
}

TEST_F(UnfinishedAnswers, ComeBackAsTheyWereCompleteOrNot) {
    import();
    answerAll();
    job.answers.gudtSettings[1].sngDepth = 0;
    job.answers.gudtSettings[3].intTool = 0;
    job.answers.gudtPens[4].blnOmit = true;
    job.answers.gblnOrderSet = false;
    keep("Jo");
    ASSERT_TRUE(findUnfinished(job));
    import();
    takeUnfinished(job, findUnfinished(job)->answers, tools);
    std::string complete;
    for (int group = 1; group <= 5; ++group)
        complete += job.answers.gudtSettings[group].blnComplete ? "y" : "n";
    EXPECT_EQ(complete, "nynyy");
    EXPECT_EQ(job.answers.gudtSettings[4].sngFeedVertical, 25);
    EXPECT_TRUE(job.answers.gudtPens[4].blnOmit && job.answers.gudtPens[2].blnDrill);
    EXPECT_FALSE(job.answers.gblnOrderSet || job.answers.gblnSavedFound);
}

TEST_F(UnfinishedAnswers, AreRefusedWhereTheFileIsNotWhole) {
    import();
    keep("Jo");
    const std::string good = readWholeFile(file, 1 << 20);
    for (const std::string& bytes :
         {std::string(), "7" + good.substr(1), "3,9" + good.substr(3), "3,2,1,-2" + good.substr(7),
          "3,2,1,101" + good.substr(7), good.substr(0, good.size() / 2), good + "x"}) {
        std::ofstream(file, std::ios::binary) << bytes;
        EXPECT_THROW(findUnfinished(job), FileError) << bytes.substr(0, 20);
    }
}

TEST_F(UnfinishedAnswers, WhereTheyCannotBeKeptEachTextIsTriedOnce) {
    import();
    folder.file("PlotSave", "");
    EXPECT_THROW(keep("Jo"), FileError);
    EXPECT_NO_THROW(keep("Jo"));
    EXPECT_THROW(keep("Ann"), FileError);
    EXPECT_NO_THROW(unfinished.forget());
}

TEST_F(UnfinishedAnswers, TheFirstPageThatIsNotCompleteIsShownElseTheOneWhereTheUserStopped) {
    import();
    const struct {
        const char* name;
        std::function<void(Answers&)> missing;
        WizardPlace stopped;
        WizardPlace shown;
    } rows[] = {
        {"the page as it was left", {}, {3, 2, 1}, {3, 2, 1}},
        {"the last page", {}, {6, 0, 0}, {6, 4, 0}},
        {"a height", [](Answers& a) { a.gsngSafeHeight = 0; }, {5, 0, 0}, {2, 0, 0}},
        {"the units", [](Answers& a) { a.gsngFeedFactor = 0; }, {3, 1, 0}, {2, 0, 0}},
        {"a hole before",
         [](Answers& a) { a.gudtSettings[3].blnComplete = false; },
         {4, 0, 0},
         {3, 2, 1}},
        {"the page itself",
         [](Answers& a) { a.gudtSettings[3].blnComplete = false; },
         {3, 2, 1},
         {3, 2, 1}},
        {"a pen behind",
         [](Answers& a) { a.gudtSettings[5].blnComplete = false; },
         {3, 2, 2},
         {3, 2, 2}},
        {"what is left out",
         [](Answers& a) {
             a.gudtSettings[5].blnComplete = false;
             a.gudtPens[4].blnOmit = true;
         },
         {4, 0, 0},
         {4, 4, 0}},
        {"the order", [](Answers& a) { a.gblnOrderSet = false; }, {6, 0, 0}, {4, 4, 0}},
        {"the material",
         [](Answers& a) { a.gstrHeader[headerMaterial] = " "; },
         {6, 0, 0},
         {5, 4, 0}},
        {"a pen that is not drawn", {}, {3, 5, 0}, {3, 1, 0}},
        {"a size that is not drawn", {}, {3, 2, 3}, {3, 2, 0}},
    };
    for (const auto& row : rows) {
        answerAll();
        job.answers.gudtPens[4].blnOmit = false;
        if (row.missing)
            row.missing(job.answers);
        EXPECT_EQ(placeToShow(job, row.stopped), row.shown) << row.name;
    }
}

} // namespace
} // namespace torvik
