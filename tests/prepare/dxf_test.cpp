// SPDX-License-Identifier: MIT
// CAD drawings as strokes.
#include "prepare/dxf/dxf_source.h"
#include "stroke_text.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace torvik {
namespace {

// Groups as "code value" with a slash between them; one unit is 1 mm and so 40 plotter units.
std::string groups(const std::string& text) {
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('/', at), text.size());
        const std::size_t blank = std::min(text.find(' ', at), end);
        result += text.substr(at, blank - at) + "\r\n" +
                  (blank < end ? text.substr(blank + 1, end - blank - 1) : "") + "\r\n";
        at = end + 1;
    }
    return result;
}

std::string section(const std::string& name, const std::string& content) {
    return groups("0 SECTION/2 " + name) + groups(content) + groups("0 ENDSEC");
}

std::string drawing(const std::string& entities, const std::string& blocks = "",
                    const std::string& tables = "", const std::string& unit = "4") {
    return section("HEADER", "9 $INSUNITS/70 " + unit) + section("TABLES", tables) +
           section("BLOCKS", blocks) + section("ENTITIES", entities) + groups("0 EOF");
}

const std::string line = "0 LINE/8 0/10 0/20 0/11 1/21 0";

struct Case {
    const char* name;
    std::string entities;
    std::string strokes;
    std::string blocks{};
    std::string tables{};
};

void expectStrokes(const std::vector<Case>& cases) {
    for (const Case& one : cases)
        EXPECT_EQ(
            strokesText(readDxf(drawing(one.entities, one.blocks, one.tables), "a.dxf").strokes),
            one.strokes)
            << one.name;
}

std::string leftOutText(const SourceReport& report) {
    std::string text;
    for (const auto& [reason, count] : report.leftOut)
        text += (text.empty() ? "" : ", ") + reason + ": " + std::to_string(count);
    return text;
}

TEST(Dxf, Figures) {
    expectStrokes({
        {"a line", line, "1: 0,0 L40,0"},
        {"a circle", "0 CIRCLE/10 10/20 5/40 2", "1: O400,200 r80"},
        {"an arc runs against the clock, through 0 degrees", "0 ARC/10 0/20 0/40 1/50 270/51 90",
         "1: 0,-40 A0,0 180>0,40"},
        {"an arc of all degrees is a circle", "0 ARC/10 0/20 0/40 1/50 0/51 360", "1: O0,0 r40"},
        {"an arc seen from below", "0 ARC/10 10/20 0/40 1/50 0/51 90/210 0/220 0/230 -1",
         "1: -440,0 A-400,0 -90>-400,40"},
        {"an ellipse that is round", "0 ELLIPSE/10 1/20 0/11 0/21 2/40 1/41 0/42 6.283185307",
         "1: O40,0 r80"},
        {"a quarter of one", "0 ELLIPSE/10 0/20 0/11 1/21 0/40 1/41 0/42 1.5707963267948966",
         "1: 40,0 A0,0 90>0,40"},
        {"which goes the other way seen from below",
         "0 ELLIPSE/10 0/20 0/11 1/21 0/40 1/41 0/42 1.5707963267948966/210 0/220 0/230 -1",
         "1: 40,0 A0,0 -90>0,-40"},
        {"a point is a dot", "0 POINT/10 1/20 2", "1: 40,80"},
        {"a filled square by its outline", "0 SOLID/10 0/20 0/11 1/21 0/12 0/22 1/13 1/23 1",
         "1: 0,0 L40,0 L40,40 L0,40 L0,0"},
        {"a light polyline, closed by an arc", "0 LWPOLYLINE/90 2/70 1/10 0/20 0/10 2/20 0/42 1",
         "1: 0,0 L80,0 A40,0 180>0,0"},
        {"an old polyline with a bulge to the other side",
         "0 POLYLINE/66 1/70 0/0 VERTEX/10 0/20 0/42 -1/0 VERTEX/10 2/20 0/0 SEQEND",
         "1: 0,0 A40,0 -180>80,0"},
        {"corners that only bend its curve are passed over",
         "0 POLYLINE/66 1/70 4/0 VERTEX/70 16/10 5/20 5/0 VERTEX/70 8/10 0/20 0/0 VERTEX/70 8/10 "
         "2/20 0/0 SEQEND",
         "1: 0,0 L80,0"},
        {"a level polyline of space",
         "0 POLYLINE/70 8/0 VERTEX/10 0/20 0/30 3/0 VERTEX/10 2/20 0/30 3", "1: 0,0 L80,0"},
    });
}

TEST(Dxf, Splines) {
    expectStrokes({
        {"of the first degree, lines",
         "0 SPLINE/71 1/40 0/40 0/40 1/40 2/40 2/10 0/20 0/10 1/20 0/10 1/20 1",
         "1: 0,0 L40,0 L40,40"},
        {"of the second degree, raised to the third",
         "0 SPLINE/71 2/40 0/40 0/40 0/40 1/40 1/40 1/10 0/20 0/10 3/20 0/10 3/20 3",
         "1: 0,0 B80,0 120,40>120,120"},
        {"of the third degree, as it stands",
         "0 SPLINE/71 3/40 0/40 0/40 0/40 0/40 1/40 1/40 1/40 1/10 0/20 0/10 1/20 0/10 2/20 1/10 "
         "3/20 1",
         "1: 0,0 B40,0 80,40>120,40"},
        // The middle of an inner control point's leg is where two pieces of the second degree meet.
        {"in two pieces between single knots",
         "0 SPLINE/71 2/40 0/40 0/40 0/40 1/40 2/40 2/40 2/10 0/20 0/10 3/20 0/10 3/20 6/10 6/20 6",
         "1: 0,0 B80,0 120,40>120,120 B120,200 160,240>240,240"},
        {"a weight of the root of a half over a right angle is a quarter circle",
         "0 SPLINE/71 2/40 0/40 0/40 0/40 1/40 1/40 1/41 1/41 0.7071067811865476/41 1/10 1/20 0/10 "
         "1/20 1/10 0/20 1",
         "1: 40,0 A0,0 90>0,40"},
        {"through two points, straight", "0 SPLINE/71 3/11 0/21 0/11 3/21 0",
         "1: 0,0 B40,0 80,0>120,0"},
        // Slopes at the ends follow the given directions, of length 1 along the chord.
        {"and with directions", "0 SPLINE/71 3/11 0/21 0/11 3/21 0/12 0/22 2/13 0/23 -1",
         "1: 0,0 B0,40 120,40>120,0"},
    });
    // A parabola as a spline of the fourth degree is followed: the middle is where it must be.
    const std::string raised = "0 SPLINE/71 4/40 0/40 0/40 0/40 0/40 0/40 1/40 1/40 1/40 1/40 1/10 "
                               "0/20 0/10 1/20 1/10 2/20 1.3333333333333333/10 3/20 1/10 4/20 0";
    const auto strokes = readDxf(drawing(raised), "a.dxf").strokes;
    ASSERT_EQ(strokes.size(), 1U);
    EXPECT_NEAR(extentsOf(strokes).high.y, 40, 0.01);
    // Closed through four corners of a square: the same from every side, and round.
    const std::string closed = "0 SPLINE/70 1/71 3/11 1/21 0/11 0/21 1/11 -1/21 0/11 0/21 -1";
    const auto ring = readDxf(drawing(closed), "a.dxf").strokes;
    ASSERT_EQ(ring.size(), 1U);
    const Stroke& stroke = ring[0];
    ASSERT_EQ(stroke.segments.size(), 4U);
    EXPECT_NEAR(distance(stroke.start, stroke.end()), 0, 1e-9);
    EXPECT_NEAR(stroke.segments[0].first.x, 40, 0.01);
    EXPECT_NEAR(stroke.segments[3].second.x, 40, 0.01);
}

TEST(Dxf, Blocks) {
    const std::string block = "0 BLOCK/2 Part/10 1/20 0/0 LINE/10 1/20 0/11 2/21 0/0 ENDBLK";
    expectStrokes({
        {"from the base to the place, scaled and turned",
         "0 INSERT/2 PART/10 10/20 0/41 2/42 2/50 90", "1: 400,0 L400,80", block},
        {"in rows and columns of the turned block",
         "0 INSERT/2 Part/10 0/20 0/50 90/70 2/71 2/44 5/45 7",
         "1: 0,0 L0,40; 1: 0,200 L0,240; 1: -280,0 L-280,40; 1: -280,200 L-280,240", block},
        {"seen from below", "0 INSERT/2 Part/10 1/20 0/230 -1", "1: -40,0 L-80,0", block},
        {"one within another", "0 INSERT/2 Two/10 1/20 1", "1: 80,40 L120,40",
         block + "/0 BLOCK/2 Two/10 0/20 0/0 INSERT/2 Part/10 1/20 0/0 ENDBLK"},
        {"a circle scaled in one direction only is a curve",
         "0 INSERT/2 C/10 0/20 0/41 2/42 2/0 INSERT/2 C/10 0/20 0/41 -3/42 3",
         "1: O0,0 r80; 1: O0,0 r120", "0 BLOCK/2 C/10 0/20 0/0 CIRCLE/10 0/20 0/40 1/0 ENDBLK"},
    });
    SourceOptions few;
    few.segmentLimit = 100;
    const auto refused = [&](const std::string& content) {
        return refusal([&] { readDxf(drawing("0 INSERT/2 A/10 0/20 0", content), "a.dxf", few); });
    };
    EXPECT_EQ(refused("0 BLOCK/2 A/0 INSERT/2 B/10 0/20 0/0 ENDBLK/"
                      "0 BLOCK/2 B/0 INSERT/2 A/10 0/20 0/0 ENDBLK"),
              "a.dxf: the block \"A\" uses itself without end");
    const struct {
        const char* says;
        std::string content;
    } tooMany[]{
        {"rows of nothing", "0 INSERT/2 B/10 0/20 0/70 1000/71 1000/0 ENDBLK/0 BLOCK/2 B"},
        {"marks of an end", "0 INSERT/2 B/10 0/20 0/70 9/71 9/0 ENDBLK/0 BLOCK/2 B/0 SEQEND"},
        {"a large thing of which nothing can be drawn", "0 NEWTHING/1 " + std::string(9'900, 'x')},
        {"a long text", "0 TEXT/10 0/20 0/40 1/1 twelve signs"},
    };
    for (const auto& one : tooMany)
        EXPECT_EQ(refused("0 BLOCK/2 A/" + one.content + "/0 ENDBLK"),
                  "a.dxf: the drawing has more than 100 things, those of its blocks each time they "
                  "are used")
            << one.says;
}

TEST(Dxf, ColoursAndLayers) {
    const std::string tables =
        "0 LAYER/2 Red/70 0/62 1/0 LAYER/2 Off/62 -3/0 LAYER/2 Ice/70 1/62 3/"
        "0 LAYER/2 True/62 1/420 255";
    const std::string at = "/10 0/20 0/11 1/21 0";
    expectStrokes({
        {"its own number", "0 LINE/8 Red/62 5" + at, "4: 0,0 L40,0", "", tables},
        {"the layer's", "0 LINE/8 red" + at, "2: 0,0 L40,0", "", tables},
        {"the layer's in full", "0 LINE/8 True" + at, "4: 0,0 L40,0", "", tables},
        {"its own in full", "0 LINE/8 Red/62 1/420 255" + at, "4: 0,0 L40,0", "", tables},
        {"white is drawn as on paper", "0 LINE/8 0/62 7" + at, "1: 0,0 L40,0", "", tables},
        {"the use's, by block and on layer 0", "0 INSERT/8 Red/2 B/10 0/20 0/62 5",
         "4: 0,0 L40,0; 2: 0,0 L40,0",
         "0 BLOCK/2 B/10 0/20 0/0 LINE/8 0/62 0" + at + "/0 LINE/8 0" + at + "/0 ENDBLK", tables},
        {"layers that are off or frozen are not drawn", "0 LINE/8 Off" + at + "/0 LINE/8 Ice" + at,
         "", "", tables},
    });
    SourceOptions options;
    options.pens = {{"layer:red", 7}, {"#0000ff", 3}};
    const SourceDrawing asked = readDxf(
        drawing("0 LINE/8 Red" + at + "/0 LINE/8 0/62 5" + at, "", tables), "a.dxf", options);
    EXPECT_EQ(strokesText(asked.strokes), "7: 0,0 L40,0; 3: 0,0 L40,0");
    EXPECT_EQ(asked.report.colours.front().colour, "layer:Red");
}

TEST(Dxf, WhatIsLeftOutIsCounted) {
    const struct {
        const char* entity;
        const char* leftOut;
    } cases[]{
        {"0 HATCH/10 0/20 0", "hatches (not drawn): 1"},
        {"0 DIMENSION/2 *D1", "dimensions (not drawn): 1"},
        {"0 3DFACE/10 0/20 0", "things in space (3D): 1"},
        {"0 LINE/10 0/20 0/30 0/11 1/21 0/31 5", "things in space (3D): 1"},
        {"0 CIRCLE/10 0/20 0/40 1/210 1/220 0/230 0", "things in space (3D): 1"},
        {"0 POLYLINE/70 64/0 VERTEX/10 0/20 0/0 SEQEND", "things in space (3D): 1"},
        {"0 LINE/67 1/10 0/20 0/11 1/21 0", "things on the paper's side: 1"},
        {"0 LINE/60 1/10 0/20 0/11 1/21 0", "hidden things: 1"},
        {"0 INSERT/2 Nothing/10 0/20 0", "uses of blocks that the file does not hold: 1"},
    };
    for (const auto& one : cases) {
        const SourceDrawing source = readDxf(drawing(one.entity), "a.dxf");
        EXPECT_EQ(leftOutText(source.report), one.leftOut) << one.entity;
        EXPECT_TRUE(source.strokes.empty()) << one.entity;
    }
    const SourceReport report =
        readDxf(drawing("0 CIRCLE/10 0/20 0/0 LINE/10 x/20 0/11 1/21 0/0 ELLIPSE/10 0/20 0/11 1/"
                        "21 0/40 .5/41 x/0 NEWTHING/0 LINE/6 DASHED/10 0/20 0/11 1/21 0"),
                "a.dxf")
            .report;
    EXPECT_EQ(report.lost(Loss::malformed), 3);
    EXPECT_EQ(report.lost(Loss::dashes), 1);
    EXPECT_EQ(report.unknown.at("NEWTHING"), 1);
}

TEST(Dxf, UnitsAndPlace) {
    const auto read = [](const std::string& unit, std::optional<LengthUnit> asked = {}) {
        SourceOptions options;
        options.units = asked;
        return readDxf(drawing(line, "", "", unit), "a.dxf", options);
    };
    EXPECT_EQ(strokesText(read("1").strokes), "1: 0,0 L1016,0");
    EXPECT_EQ(strokesText(read("5").strokes), "1: 0,0 L400,0");
    EXPECT_EQ(strokesText(read("6", LengthUnit::mm).strokes), "1: 0,0 L40,0");
    const SourceDrawing unnamed = read("0");
    EXPECT_EQ(strokesText(unnamed.strokes), "1: 0,0 L40,0");
    EXPECT_EQ(unnamed.report.remarks.front(), "the file names no unit; mm are taken");
    EXPECT_EQ(read("0", LengthUnit::inch).report.sizeDoubt, SizeDoubt::unit);
    const SourceDrawing far =
        readDxf(drawing("0 LINE/10 500000/20 20000/11 500001/21 20000"), "a.dxf");
    EXPECT_EQ(strokesText(far.strokes), "1: 0,0 L40,0");
    EXPECT_EQ(
        far.report.remarks.front(),
        "the drawing lies more than 10 m from its origin; its lower left corner comes to 0, 0");
}

// Where the ink of a text lies, in mm; a letter I is one upright line.
std::string inkOf(const std::string& entity) {
    const auto [low, high] = extentsOf(readDxf(drawing(entity), "a.dxf").strokes);
    return shortNumber((low.x + high.x) / 80) + "," + shortNumber(low.y / 40) + " to " +
           shortNumber(high.y / 40);
}

TEST(Dxf, Texts) {
    // The letter takes 8 of 21 parts of its height.
    const struct {
        const char* name;
        const char* entity;
        const char* ink;
    } cases[]{
        {"from its place", "0 TEXT/10 10/20 5/40 21/1 I", "14,5 to 26"},
        {"about a place below", "0 TEXT/10 0/20 0/11 10/21 5/40 21/72 1/1 I", "10,5 to 26"},
        {"up to a place", "0 TEXT/10 0/20 0/11 10/21 5/40 21/72 2/1 I", "6,5 to 26"},
        {"about its middle", "0 TEXT/10 0/20 0/11 10/21 5/40 21/72 4/1 I", "10,-5.5 to 15.5"},
        {"hanging from the top", "0 TEXT/10 0/20 0/11 10/21 5/40 21/73 3/1 I", "14,-16 to 5"},
        {"as wide as between two places", "0 TEXT/10 0/20 0/11 16/21 0/40 21/72 5/1 I",
         "8,0 to 21"},
        {"as large as between two places", "0 TEXT/10 0/20 0/11 16/21 0/40 21/72 3/1 I",
         "8,0 to 42"},
        {"wider", "0 TEXT/10 0/20 0/40 21/41 2/1 I", "8,0 to 21"},
        {"upside down", "0 TEXT/10 0/20 0/40 21/71 4/1 I", "4,-21 to 0"},
        {"a value of a block's use", "0 INSERT/66 1/2 No/10 0/20 0/0 ATTRIB/10 1/20 0/40 21/1 I",
         "5,0 to 21"},
        {"a paragraph hangs from its place", "0 MTEXT/10 0/20 0/40 21/1 I", "4,-21 to 0"},
        {"two lines, about the middle", R"(0 MTEXT/10 0/20 0/40 21/71 5/1 I\PI)", "0,-28 to 28"},
        {"standing on the place, with formats", R"(0 MTEXT/10 0/20 0/40 21/71 7/1 {\fArial|b1;I})",
         "4,0 to 21"},
        {"broken where it is too wide", "0 MTEXT/10 0/20 0/40 21/41 9/1 I I", "4,-56 to 0"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(inkOf(one.entity), one.ink) << one.name;
    const SourceReport report =
        readDxf(drawing("0 TEXT/10 0/20 0/40 1/1 \xE4%%c\\U+00DF/0 TEXT/10 0/20 0/40 1/1 \\U+4E2D"),
                "a.dxf")
            .report;
    EXPECT_EQ(report.texts, 2);
    EXPECT_EQ(report.unknownLetters, 1);
    SourceOptions without;
    without.texts = false;
    EXPECT_EQ(
        readDxf(drawing("0 TEXT/10 0/20 0/40 1/1 I"), "a.dxf", without).report.lost(Loss::text), 1);
}

TEST(Dxf, RefusesWhatIsNone) {
    const auto refused = [](std::string_view bytes) {
        return refusal([&] { readDxf(bytes, "a.dxf"); });
    };
    EXPECT_EQ(refused("AutoCAD Binary DXF\r\n\x1a"),
              "a.dxf: this is a binary DXF; save it as a DXF of text (ASCII, R12 to 2018)");
    EXPECT_EQ(refused("AC1015\0"),
              "a.dxf: this is a DWG drawing; save it as a DXF of text (ASCII, R12 to 2018)");
    EXPECT_EQ(refused("  0\nSECTION\nhello\n"),
              "a.dxf: line 3 is no group code; this is no DXF drawing, or a damaged one");
    EXPECT_EQ(refused("0\nEOF\n"), "a.dxf: this is no DXF drawing: it has no section");
    const SourceDrawing cut =
        readDxf("\xEF\xBB\xBF" + section("ENTITIES", line + "/999 a remark"), "a.dxf");
    EXPECT_EQ(strokesText(cut.strokes), "1: 0,0 L40,0");
    EXPECT_EQ(cut.report.remarks.front(), "the file ends in the middle; what it holds is drawn");
}

} // namespace
} // namespace torvik
