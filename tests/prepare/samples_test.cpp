// SPDX-License-Identifier: MIT
// Each sample goes from its source through both programs to a Kestra file, with the answers that
// stand beside it.
#include "convert/converter.h"
#include "prepare/command/preparer.h"
#include "tests/base/temporary_folder.h"

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

} // namespace
} // namespace torvik
