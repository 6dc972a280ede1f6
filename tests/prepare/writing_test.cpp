// SPDX-License-Identifier: MIT
// What is written, how the job's own reader takes it, and what is refused.
#include "base/errors.h"
#include "base/logger.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "prepare/arcs.h"
#include "prepare/fitting/grid.h"
#include "prepare/writing/check.h"
#include "prepare/writing/writer.h"

#include <gtest/gtest.h>
#include <string>

namespace torvik {
namespace {

std::string refusal(const std::string& text, const std::vector<Stroke>& strokes) {
    try {
        checkWritten(text, strokes, 0.01);
    } catch (const RunTimeError& error) {
        return error.what();
    }
    return "";
}

std::vector<Stroke> sample() {
    Stroke path{2, {10.5, 20}, {lineSegment({30, 20.0625})}};
    path.segments.push_back(arcSegment(path.end(), {30, 120.0625}, 90));
    path.segments.push_back(lineSegment({0, -0.0}));
    Stroke arc{2, {0, 50}, {arcSegment({0, 50}, {0, 0}, -180)}};
    return {circleStroke(1, {100, 200.1234}, 12.5), path, arc};
}

TEST(Writer, WritesOneInstructionALine) {
    EXPECT_EQ(writeDrawing(sample()), "IN;\n"
                                      "SP1;\n"
                                      "PU100,200.1234;\n"
                                      "CI12.5;\n"
                                      "SP2;\n"
                                      "PU10.5,20;\n"
                                      "PD30,20.0625;\n"
                                      "AA30,120.0625,90;\n"
                                      "PD0,0;\n"
                                      "PU0,50;\n"
                                      "PD;\n"
                                      "AA0,0,-180;\n"
                                      "SP0;\n");
}

TEST(Writer, IsReadBackByTheJobsReaderToTheLastInstruction) {
    const std::string text = writeDrawing(sample());
    EXPECT_EQ(refusal(text, sample()), "");
    EXPECT_TRUE(isPlainDrawing(text));
    Job job;
    Logger logger;
    readInstructions(job.drawing, text, "", logger);
    ASSERT_EQ(job.drawing.gintPathCount, 5);
    EXPECT_FLOAT_EQ(job.drawing.gudtPaths[1].sngCentreX, 2.5F);
    EXPECT_FLOAT_EQ(job.drawing.gudtPaths[1].sngStartY, 200.1234F / 40 + 12.5F / 40);
    // After the circle the reader stands at its top: the next stroke begins at its own place.
    EXPECT_FLOAT_EQ(job.drawing.gudtPaths[2].sngStartX, 10.5F / 40);
    EXPECT_FLOAT_EQ(job.drawing.gudtPaths[4].sngStartX, 130.0F / 40);
    EXPECT_FLOAT_EQ(job.drawing.gudtPaths[5].sngStartY, 50.0F / 40);
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
        std::string other = text;
        return other.replace(other.find(from), from.size(), to);
    };
    EXPECT_EQ(refusal(changed("CI12.5", "CI14.5"), strokes),
              "the prepared drawing was not written, because element 1 is read back 0.050 mm "
              "beside its place");
    EXPECT_NE(refusal(changed("PD30,20.0625", "PD31,20.0625"), strokes), "");
    EXPECT_NE(refusal(changed(",90;", ",91;"), strokes), "");
    EXPECT_NE(refusal(changed("SP2;", "SP3;"), strokes), "");
    EXPECT_NE(refusal(changed(",-180;", ",180;"), strokes), "");
    EXPECT_NE(refusal(changed("SP0;", "PD9,9;"), strokes), "");
    EXPECT_NE(refusal(changed("PD0,0;\n", ""), strokes), "");
    EXPECT_NE(refusal(changed("SP2;", "SP0;"), strokes), "");
}

} // namespace
} // namespace torvik
