// SPDX-License-Identifier: MIT
#include "preview/depths.h"
#include "preview/line_picture.h"
#include "tests/preview/machined_job.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

// A slanted Black line, Red ones across it, a Green circle; 50 mm square.
const char* const crossing = "SP1;PU100,200;PD1900,1700;SP2;PU200,1800;PD1800,100;PD1900,900;"
                             "SP3;PU1000,1000;CI500";

class LinePictureTest : public testing::TestWithParam<double> {
protected:
    QImage plot(const Job& shown) {
        const int side = static_cast<int>(200 * GetParam());
        picture.PlotLines(shown, plainView(4, 200, GetParam()), {side, side});
        return picture.image();
    }

    Job job = setUpDrawing(crossing);
    LinePicture picture;
};

INSTANTIATE_TEST_SUITE_P(ScaleFactors, LinePictureTest, testing::Values(1.0, 1.25, 1.5, 2.0));

TEST(LngPenColour, KnowsPens1To8Only) {
    Job job;
    SetColourDefinitions(job);
    EXPECT_THROW(lngPenColour(job.answers, 0), SubscriptOutOfRange);
    EXPECT_THROW(lngPenColour(job.answers, 9), SubscriptOutOfRange);
}

TEST_P(LinePictureTest, HiddenPathsLeaveNoTraceAndNoGapAndComeBack) {
    Job others = job;
    others.answers.gudtPens[1].blnOmit = true; // never drawn at all
    const QImage without = plot(others);
    const QImage before = plot(job);
    picture.plotBlink({1}, false);
    EXPECT_EQ(picture.image(), without);
    picture.plotBlink({1}, true);
    EXPECT_EQ(picture.image(), before);
    picture.DrawLine(2, 1);
    EXPECT_NE(picture.image(), before);
    picture.DrawLine(2, 0);
    EXPECT_EQ(picture.image(), before);
}

TEST_P(LinePictureTest, UprightAndLevelLinesAreSharp) {
    // Lines of one pixel are sharp wherever they lie, wider ones where they fill whole pixels.
    job = setUpDrawing(GetParam() < 1.5 ? "SP2;PU403,407;PD1604,407;PD1604,1201"
                                        : "SP2;PU400,400;PD1600,400;PD1600,1200");
    const QImage image = plot(job);
    const int width = std::max(1, static_cast<int>(std::lround(GetParam())));
    int rows = 0;
    int columns = 0;
    for (int i = 0; i < image.width(); ++i) {
        const QRgb inColumn = image.pixel(image.width() / 2, i);
        const QRgb inRow = image.pixel(i, image.height() / 2);
        for (const QRgb pixel : {inColumn, inRow})
            EXPECT_TRUE(pixel == white || pixel == 0xFFFF0000) << "blurred at " << i;
        rows += inColumn != white;
        columns += inRow != white;
    }
    EXPECT_EQ(rows, width);
    EXPECT_EQ(columns, width);
}

// The top and the right side of a plate, with a round corner and a bevelled one.
TEST_P(LinePictureTest, NothingSticksOutWhereLinesMeet) {
    constexpr int faint = 0xE8; // what smoothing may leave beside a line
    for (const char* drawing : {"SP1;PU403,1607;PD1203,1607;AA1203,1207,-90;PD1603,407",
                                "SP1;PU403,1607;PD1203,1607;PD1603,1207;PD1603,407",
                                "SP1;PU1603,407;PD1603,1207;AA1203,1207,90;PD403,1607"}) {
        job = readDrawing(drawing);
        const QImage image = plot(job);
        int top = 0;
        int right = image.width() - 1;
        const int quarter = image.width() / 4;
        while (image.pixel(image.width() / 2, top) == white)
            ++top;
        while (image.pixel(right, image.height() - quarter) == white)
            --right;
        for (int i = 0; i < image.width(); ++i) {
            EXPECT_GT(qGray(image.pixel(i, top - 1)), faint) << drawing << " above, at " << i;
            EXPECT_GT(qGray(image.pixel(right + 1, i)), faint) << drawing << " beside, at " << i;
        }
    }
}

TEST_P(LinePictureTest, ADotShows) {
    for (const char* drawing : {"SP1;PU1000,1000;PD1000,1000", "SP1;PU1000,1000;CI0"}) {
        job = readDrawing(drawing);
        const QImage image = plot(job);
        const int middle = static_cast<int>(100 * GetParam());
        EXPECT_LT(qGray(image.pixel(middle, middle)), 0xC0) << drawing;
    }
}

} // namespace
} // namespace torvik
