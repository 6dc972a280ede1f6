// SPDX-License-Identifier: MIT
// Each sample goes from its source through both programs to a Kestra file, with the answers that
// stand beside it.
#include "base/files.h"
#include "convert/converter.h"
#include "job/extents.h"
#include "prepare/command/preparer.h"
#include "prepare/prepare.h"
#include "prepare/report.h"
#include "tests/base/temporary_folder.h"
#include "tests/job/drawing.h"

#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

namespace torvik {
namespace {

TEST(Samples, BecomePrograms) {
    const struct {
        std::string source, name;
        const char* statement; // of a circle that was drawn as chords, as arcs or in a group
    } rows[] = {
        {"plate.plt", "plate", "G0 X40.000 Y40.000"},
        {"badge.hpgl", "badge", "G3 X30.000 Y59.000 I0.000 J-29.000"},
        {"sign.svg", "sign", "G0 X10.000 Y30.000"},
    };
    const TemporaryFolder folder;
    const std::string samples = TORVIK_SAMPLES;
    for (const auto& row : rows) {
        const std::string drawing = (folder.path() / row.name).string() + "-torvik.plt";
        const std::string program = drawing + ".iso";
        std::ostringstream out;
        std::ostringstream err;
        runPreparer({QStringLiteral("torvik-prepare"),
                     QString::fromStdString(samples + "/prepare/" + row.source),
                     QStringLiteral("-o"), QString::fromStdString(drawing)},
                    out, err);
        ASSERT_EQ(runConverter({"torvik-convert", drawing, "--target", "kestra", "--answers",
                                samples + "/prepare/" + row.name + "-torvik.plx", "--tools",
                                samples + "/Maskor.ini", "--output", program},
                               out, err),
                  0)
            << err.str();
        const std::string text = readWholeFile(program, 1 << 20);
        EXPECT_NE(text.find(row.statement), std::string::npos) << row.name;
        EXPECT_NE(text.find("M30"), std::string::npos) << row.name;
    }
}

// Outside a plate of 100 mm by 50 mm from 10, 10 the middle of a tool of 6 mm is 3 mm further out.
TEST(Samples, OfCadAndOfADrawingProgramBecomeTheSamePlate) {
    const TemporaryFolder folder;
    std::vector<std::string> texts;
    for (const char* const name : {"doorplate.dxf", "doorplate.svg"}) {
        const std::string drawing = (folder.path() / name).string() + ".plt";
        std::ostringstream out;
        std::ostringstream err;
        QStringList words =
            QStringLiteral("torvik-prepare %1/prepare/%2 -o %3 --report --run 2=outside:6 "
                           "--run 4=inside:3 --run 3=pocket:6 --tabs 2=5:4:3")
                .arg(TORVIK_SAMPLES, QString::fromUtf8(name), QString::fromStdString(drawing))
                .split(u' ');
        ASSERT_EQ(runPreparer(words, out, err), 0) << err.str();
        for (const char* const row :
             {"Extents: X 7.000 to 113.000 mm, Y 7.000 to 63.000 mm", "Texts drawn: 1",
              "Pen 4 Blue: 0 lines, 0 arcs, 4 circles", "Tabs: 4"})
            EXPECT_NE(out.str().find(row), std::string::npos) << name << ": " << row;
        texts.push_back(readWholeFile(drawing, 1 << 20));
    }
    EXPECT_EQ(texts[0], texts[1]);
}

TEST(Samples, OfTheJobsOwnKindLoseNothing) {
    for (const char* const name : {"allpens", "bracket", "clockface", "gear", "nameplate"}) {
        const auto file = std::filesystem::path(TORVIK_SAMPLES) / (std::string(name) + ".plt");
        const std::string bytes = readWholeFile(file, maxDrawingBytes);
        const PreparedDrawing prepared = prepareDrawing(readHpgl(bytes, name), {});
        EXPECT_EQ(lossLine(prepared.report), "") << name;
        const Job job = readDrawing(bytes);
        EXPECT_EQ(job.drawing.reading.lost, 0) << name;
        double length = 0;
        for (const Path& path : job.drawing.gudtPaths) {
            const double turn = std::fmod(path.sngAngleTo - path.sngAngleFrom + 6.2832, 6.2832);
            length += path.intType == straightLine
                          ? std::hypot(path.sngEndX - path.sngStartX, path.sngEndY - path.sngStartY)
                          : path.sngRadius * (isFullTurn(path) ? 6.2832 : turn);
        }
        EXPECT_NEAR(prepared.report.cutAfter, length, 0.1) << name;
    }
}

} // namespace
} // namespace torvik
