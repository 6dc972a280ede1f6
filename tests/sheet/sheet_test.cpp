// SPDX-License-Identifier: MIT
// The job sheet: one page whatever the job, and what the shell is told.
#include "base/files.h"
#include "gcode/dialects.h"
#include "job/job.h"
#include "sheet/command/sheet_command.h"
#include "sheet/sheet_page.h"
#include "tests/base/temporary_folder.h"
#include "trial/trial.h"

#include <QPainter>

#include <gtest/gtest.h>
#include <sstream>

namespace torvik {
namespace {

namespace fs = std::filesystem;

const fs::path samples = TORVIK_SAMPLES;

struct SheetRun {
    int code = 0;
    std::string err;
};

SheetRun run(std::vector<std::string> arguments) {
    std::ostringstream out;
    std::ostringstream err;
    arguments.insert(arguments.begin(), "torvik");
    const int code = runSheetCommand(std::move(arguments), out, err);
    return {code, err.str()};
}

std::vector<std::string> sheetOf(const fs::path& output, const std::string& sample) {
    return {"--sheet",
            output.string(),
            (samples / (sample + ".plt")).string(),
            "--answers",
            (samples / (sample + ".plx")).string(),
            "--tools",
            (samples / "Maskor.ini").string()};
}

TEST(SheetCommand, ASheetIsOnePageAndReplacesASheetOnly) {
    const TemporaryFolder folder;
    const fs::path output = folder.path() / "a.pdf";
    const SheetRun first = run(sheetOf(output, "allpens"));
    ASSERT_EQ(first.code, 0) << first.err;
    const std::string pdf = readWholeFile(output, 10'000'000);
    EXPECT_NE(pdf.find("/Count 1\n"), pdf.npos);
    EXPECT_EQ(run(sheetOf(output, "gear")).code, 0);
    const fs::path text = folder.file("notes.txt", "mine");
    const SheetRun other = run(sheetOf(text, "gear"));
    EXPECT_EQ(other.code, 2);
    EXPECT_NE(other.err.find("notes.txt"), std::string::npos);
    EXPECT_EQ(readWholeFile(text, 100), "mine");
}

TEST(SheetCommand, TheShellIsToldWhatIsWrong) {
    const TemporaryFolder folder;
    const std::string output = (folder.path() / "a.pdf").string();
    auto wrongDrawing = sheetOf(output, "gear");
    wrongDrawing[4] = (samples / "bracket.plx").string();
    struct Row {
        const char* what;
        std::vector<std::string> arguments;
        int code;
    };
    const Row rows[]{
        {"no drawing", {"--sheet", output}, 1},
        {"no such control", {"--sheet", output, "a.plt", "--target", "lathe"}, 1},
        {"no such file", {"--sheet", output, folder.path().string() + "/none.plt"}, 2},
        {"the answers of another drawing", wrongDrawing, 3},
    };
    for (const Row& row : rows) {
        const SheetRun told = run(row.arguments);
        EXPECT_EQ(told.code, row.code) << row.what << ": " << told.err;
        EXPECT_FALSE(told.err.empty()) << row.what;
        EXPECT_FALSE(fs::exists(output)) << row.what;
    }
}

TEST(SheetContent, WhatIsFoundAgainAndAgainIsToldOnceTheWorstFirst) {
    TriedProgram tried;
    tried.findings.add(check::Kind::noList, 1);
    for (const std::uint32_t line : {15U, 16U})
        tried.findings.add(check::Kind::rapidDown, line, {"-1.00"});
    tried.findings.add(check::Kind::heightLow, 0, {"Safe Height"});
    QStringList told;
    for (const SheetFinding& finding :
         sheetContent(Job{}, dialectFor(targetKestra), tried, {}).findings)
        told.append(finding.text.section(u':', 0, 0));
    EXPECT_EQ(told.join(u'|').toStdString(), "Danger|Danger, line 15 and 1 more|Note, line 1");
}

// Everything that is painted below the lists' end or beside the page would be lost on paper.
TEST(SheetPage, LongListsEndAboveTheTeachersLine) {
    EXPECT_EQ(rowsShown(12, 12), 12U);
    EXPECT_EQ(rowsShown(40, 12), 11U);
    EXPECT_EQ(andMore(40, 11), QStringLiteral("and 29 more"));
    SheetContent content;
    content.order.assign(40, QStringList(9, QStringLiteral("W")));
    content.tools.assign(40, QStringList(3, QStringLiteral("W")));
    content.findings.assign(200, {true, QStringLiteral("W").repeated(300)});
    QImage page(1050, 1485, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.scale(0.5, 0.5);
    paintSheet(painter, content, {});
    painter.end();
    const auto isBlank = [&](int from, int to) {
        for (int y = from; y < to; ++y)
            for (int x = 0; x < page.width(); ++x)
                if (page.pixel(x, y) != qRgb(255, 255, 255))
                    return false;
        return true;
    };
    EXPECT_FALSE(isBlank(1300, 1345)) << "the lists fill their room";
    EXPECT_TRUE(isBlank(1350, 1395));
}

} // namespace
} // namespace torvik
