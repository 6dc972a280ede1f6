// SPDX-License-Identifier: MIT
// Texts as single strokes, in heights of a capital letter, which is 21 of the font's steps.
#include "base/errors.h"
#include "prepare/text/hershey_font.h"
#include "prepare/text/smooth_line.h"
#include "prepare/text/text_line.h"
#include "tests/prepare/stroke_text.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

TEST(TextLine, LettersStandOnTheBaselineOneBehindTheOther) {
    // I takes 8 steps and stands in their middle; E takes 19 and begins 4 behind its left side.
    const TextLine line = textLine("IE");
    EXPECT_EQ(strokesText(line.strokes),
              "1: 0.19,1 L0.19,0; 1: 0.571,1 L0.571,0; 1: 0.571,1 L1.19,1; "
              "1: 0.571,0.524 L0.952,0.524; 1: 0.571,0 L1.19,0");
    EXPECT_NEAR(line.width, 27.0 / 21, 1e-12);
    // Each in the middle of a room of 1, the next one 2 further.
    EXPECT_EQ(strokesText(textLine("II", {FixedPitch{1, 2}, 0}).strokes),
              "1: 0.5,1 L0.5,0; 1: 2.5,1 L2.5,0");
    EXPECT_NEAR(textLine("I I", {{}, 0.5}).width, (8 + 16 + 8) / 21.0 + 1.5, 1e-12);
}

TEST(TextLine, LettersOfOtherLanguagesAreComposedAndUnknownOnesAreBoxes) {
    const struct {
        const char* text;
        long unknown;
        std::size_t strokes;
    } rows[] = {
        {"ä", 0, 4},                                  // the two of a, two dots
        {"Å", 0, 4},   {"ç", 0, 2},      {"í", 0, 2}, // its dot has gone
        {"ß", 0, 2},   {"\xFF", 1, 1},                // no UTF-8
        {"中!", 1, 3}, {"\t\x07", 0, 0},
    };
    for (const auto& row : rows) {
        const TextLine line = textLine(row.text);
        EXPECT_EQ(line.unknownLetters, row.unknown) << row.text;
        EXPECT_EQ(line.strokes.size(), row.strokes) << row.text;
    }
    for (const char* const letter : {"Ä", "Ö", "Ü", "ö", "ü", "é", "è", "à", "ñ", "å", "ø", "Ø"})
        EXPECT_EQ(textLine(letter).unknownLetters, 0) << letter;
}

TEST(TextLine, GentleTurnsAreCurvesAndCornersStay) {
    const auto kinds = [](std::vector<Point> points) {
        std::string text;
        for (const Segment& segment : smoothLine(points, 5).segments)
            text += isLine(segment) ? 'L' : 'B';
        return text;
    };
    EXPECT_EQ(kinds({{0, 0}, {1, 0}, {1, 1}}), "LL");
    EXPECT_EQ(kinds({{0, 0}, {9, 0}, {10, 0.5}, {10.5, 1.5}}), "LBB");
    // A ring of eight corners on a circle of radius 2: the middle of each curve lies on it, too.
    const double d = std::sqrt(2.0);
    const Stroke ring = smoothLine(
        std::vector<Point>{
            {2, 0}, {d, d}, {0, 2}, {-d, d}, {-2, 0}, {-d, -d}, {0, -2}, {d, -d}, {2, 0}},
        5);
    Point start = ring.start;
    for (const Segment& curve : ring.segments) {
        ASSERT_EQ(curve.kind, SegmentKind::curve);
        EXPECT_NEAR(length(start + (curve.first + curve.second) * 3 + curve.end) / 8, 2, 1e-4);
        start = curve.end;
    }
}

TEST(HersheyFont, ADamagedFontIsRefused) {
    EXPECT_EQ(readHersheyFont("    1  2MWRFRT\n").size(), 1u);
    for (const char* const text : {"    1  9MW\n", "    1  xMW\n", "short\n", "    1  1MW"})
        EXPECT_THROW(readHersheyFont(text), RunTimeError) << text;
}

} // namespace
} // namespace torvik
