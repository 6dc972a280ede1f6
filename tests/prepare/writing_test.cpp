// SPDX-License-Identifier: MIT
// What is written, how the job's own reader takes it, and what is refused.
#include "prepare/arcs.h"
#include "prepare/fitting/grid.h"
#include "prepare/writing/check.h"
#include "prepare/writing/writer.h"
#include "stroke_text.h"

#include <gtest/gtest.h>
#include <string>

namespace torvik {
namespace {

std::vector<Stroke> sample() {
    Stroke path{2, {10.5, 20}, {lineSegment({30, 20.0625})}};
    path.segments.push_back(arcSegment(path.end(), {30, 120.0625}, 90));
    path.segments.push_back(lineSegment({0, -0.0}));
    Stroke arc{2, {0, 50}, {arcSegment({0, 50}, {0, 0}, -180)}};
    return {circleStroke(1, {100, 200.1234}, 12.5), path, arc};
}

TEST(Writer, WritesOneInstructionALine) {
    EXPECT_EQ(writeDrawing(sample()),
              "IN;\nSP1;\nPU100,200.1234;\nCI12.5;\nSP2;\nPU10.5,20;\nPD30,20.0625;\n"
              "AA30,120.0625,90;\nPD0,0;\nPU0,50;\nPD;\nAA0,0,-180;\nSP0;\n");
}

// Single precision drifts along many arcs; the reader is led back before it can be seen.
TEST(Writer, HoldsTheReaderToALongChainOfArcs) {
    Stroke chain{1, {40000, 30000}, {}};
    for (int i = 0; i < 4000; ++i)
        chain.segments.push_back(
            arcSegment(chain.end(), chain.end() + rotated({37.1234, 0}, i % 90 + 30), 33.3333));
    settle(chain);
    std::vector<Stroke> strokes{chain};
    EXPECT_NO_THROW(checkWritten(writeDrawing(strokes), strokes, 0.001));
}

TEST(Check, FindsWhatIsNotReadAsItWasMeant) {
    const auto strokes = sample();
    const std::string text = writeDrawing(strokes);
    const auto changed = [&](const std::string& from, const std::string& to) {
        const auto other = std::string(text).replace(text.find(from), from.size(), to);
        return refusal([&] { checkWritten(other, strokes, 0.01); });
    };
    EXPECT_EQ(changed("IN", "IN"), "");
    EXPECT_EQ(changed("CI12.5", "CI14.5"),
              "the prepared drawing was not written, because element 1 is read back 0.050 mm "
              "beside its place");
    EXPECT_NE(changed("PD30,20.0625", "PD31,20.0625"), "");
    EXPECT_NE(changed(",90;", ",91;"), "");
    EXPECT_NE(changed("SP2;", "SP3;"), "");
    EXPECT_NE(changed(",-180;", ",180;"), "");
    EXPECT_NE(changed("SP0;", "PD9,9;"), "");
    EXPECT_NE(changed("PD0,0;\n", ""), "");
    EXPECT_NE(changed("SP2;", "SP0;"), "");
}

} // namespace
} // namespace torvik
