// SPDX-License-Identifier: MIT
// Each sample goes from its source through both programs to a Kestra file, with the answers that
// stand beside it.
#include "base/files.h"
#include "base/logger.h"
#include "convert/converter.h"
#include "job/extents.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "prepare/command/preparer.h"
#include "prepare/prepare.h"
#include "prepare/report.h"
#include "tests/base/temporary_folder.h"

#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

namespace torvik {
namespace {

struct Sample {
    const char* source;
    const char* name;
    const char* statement; // of a circle that was drawn as chords, as arcs or in a group
};

class Samples : public testing::TestWithParam<Sample> {};

TEST_P(Samples, BecomePrograms) {
    const std::string samples = TORVIK_SAMPLES;
    const TemporaryFolder folder;
    const std::string drawing = (folder.path() / GetParam().name).string() + "-torvik.plt";
    const std::string program = (folder.path() / "program.iso").string();
    std::ostringstream out;
    std::ostringstream err;
    ASSERT_EQ(runPreparer({QStringLiteral("torvik-prepare"),
                           QString::fromStdString(samples + "/prepare/" + GetParam().source),
                           QStringLiteral("-o"), QString::fromStdString(drawing)},
                          out, err),
              0)
        << err.str();
    ASSERT_EQ(runConverter({"torvik-convert", drawing, "--target", "kestra", "--answers",
                            samples + "/prepare/" + GetParam().name + "-torvik.plx", "--tools",
                            samples + "/Maskor.ini", "--output", program},
                           out, err),
              0)
        << err.str();
    std::ifstream file(program);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    EXPECT_NE(text.find(GetParam().statement), std::string::npos);
    EXPECT_NE(text.find("M30"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Prepared, Samples,
                         testing::Values(Sample{"plate.plt", "plate", "G0 X40.000 Y40.000"},
                                         Sample{"badge.hpgl", "badge",
                                                "G3 X30.000 Y59.000 I0.000 J-29.000"},
                                         Sample{"sign.svg", "sign", "G0 X10.000 Y30.000"}),
                         [](const auto& tested) { return tested.param.name; });

TEST(Samples, OfTheJobsOwnKindLoseNothing) {
    for (const char* const name : {"allpens", "bracket", "clockface", "gear", "nameplate"}) {
        const auto file = std::filesystem::path(TORVIK_SAMPLES) / (std::string(name) + ".plt");
        const std::string bytes = readWholeFile(file, maxDrawingBytes);
        const PreparedDrawing prepared = prepareDrawing(readHpgl(bytes, name), {});
        EXPECT_EQ(lossLine(prepared.report), "") << name;
        const auto read = [&](const std::string& text) {
            Job job;
            Logger logger;
            readInstructions(job.drawing, text, name, logger);
            EXPECT_EQ(job.drawing.reading.lost, 0) << name;
            double length = 0;
            for (const Path& path : job.drawing.gudtPaths)
                length +=
                    std::hypot(path.sngEndX - path.sngStartX, path.sngEndY - path.sngStartY) +
                    path.sngRadius *
                        (isFullTurn(path)
                             ? 6.2832
                             : std::fmod(path.sngAngleTo - path.sngAngleFrom + 6.2832, 6.2832));
            return length;
        };
        EXPECT_NEAR(read(prepared.text), read(bytes), 0.1) << name;
    }
}

} // namespace
} // namespace torvik
