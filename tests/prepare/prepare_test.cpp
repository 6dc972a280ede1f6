// SPDX-License-Identifier: MIT
// The whole road from a drawing to a prepared one: what holds for any drawing, and a few by hand.
#include "base/errors.h"
#include "base/logger.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "prepare/fitting/flatten.h"
#include "prepare/prepare.h"
#include "prepare/report.h"
#include "random_strokes.h"
#include "stroke_text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>

namespace torvik {
namespace {

constexpr double tolerance = 0.01; // mm

PreparedDrawing prepared(const std::string& drawing, const PrepareOptions& options = {}) {
    return prepareDrawing(readHpgl(drawing, "test.plt"), options);
}

// A piece of a drawing in mm, as the job's own reader has it or as the strokes do.
struct Element {
    int pen;
    Point start;
    Segment segment;
};

std::vector<Element> read(const std::string& text) {
    Job job;
    Logger logger;
    readInstructions(job.drawing, text, "", logger);
    std::vector<Element> elements;
    for (const Path& path : job.drawing.gudtPaths) {
        Element element{path.intPen, {path.sngStartX, path.sngStartY}, {}};
        element.segment = lineSegment({path.sngEndX, path.sngEndY});
        if (path.intType != straightLine) {
            double sweep = degrees(double{path.sngAngleTo} - path.sngAngleFrom);
            if (sweep <= 0)
                sweep += fullTurn;
            element.segment.kind = SegmentKind::arc;
            element.segment.first = {path.sngCentreX, path.sngCentreY};
            element.segment.sweep = path.intType == arcCounterClockwise ? sweep : -sweep;
        }
        elements.push_back(element);
    }
    return elements;
}

// The strokes' own lines and arcs, curves as very short chords.
std::vector<Element> elementsOf(const std::vector<Stroke>& strokes) {
    std::vector<Element> elements;
    const auto inMm = [](Point p) { return p * (1 / plotterUnitsPerMm); };
    for (const Stroke& stroke : strokes) {
        Point place = stroke.start;
        const auto add = [&](Segment segment) {
            const Point end = segment.end;
            segment.end = inMm(segment.end);
            segment.first = inMm(segment.first);
            elements.push_back({stroke.pen, inMm(place), segment});
            place = end;
        };
        for (const Segment& segment : stroke.segments) {
            if (segment.kind != SegmentKind::curve) {
                add(segment);
                continue;
            }
            for (const Point& end : flattenCurve(place, segment, 0.004))
                add(lineSegment(end));
        }
    }
    return elements;
}

double distanceTo(const std::vector<Element>& elements, int pen, Point point) {
    double nearest = HUGE_VAL;
    for (const Element& element : elements)
        if (element.pen == pen)
            nearest =
                std::min(nearest, isArc(element.segment)
                                      ? distanceToArc(element.start, element.segment, point)
                                      : distanceToLine(element.start, element.segment.end, point));
    return nearest;
}

// How far points on the elements are from the others at most.
double farthest(const std::vector<Element>& from, const std::vector<Element>& to,
                bool withinChords) {
    double largest = 0;
    for (const Element& element : from)
        for (const double part : {0.31, 0.62, 1.0}) {
            if (!isArc(element.segment) && part < 1 && !withinChords)
                continue;
            const Point point = isArc(element.segment)
                                    ? pointOnArc(element.start, element.segment, part)
                                    : element.start + (element.segment.end - element.start) * part;
            largest = std::max(largest, distanceTo(to, element.pen, point));
        }
    return largest;
}

class AnyDrawing : public testing::TestWithParam<unsigned> {
protected:
    AnyDrawing() : m_random(GetParam()) {
        for (int i = m_random.whole(1, 4); i > 0; --i)
            m_source.strokes.push_back(m_random.stroke());
        m_options.optimize = m_random.whole(0, 3) == 0;
    }

    RandomStrokes m_random;
    SourceDrawing m_source;
    PrepareOptions m_options;
};

TEST_P(AnyDrawing, WithoutArcsLiesWithinTheToleranceBothWays) {
    m_options.arcs = false;
    const auto before = elementsOf(m_source.strokes);
    const auto after = read(prepareDrawing(m_source, m_options).text);
    EXPECT_LE(farthest(before, after, true), tolerance);
    EXPECT_LE(farthest(after, before, true), tolerance);
}

TEST_P(AnyDrawing, WithArcsKeepsItsOwnPoints) {
    const auto before = elementsOf(m_source.strokes);
    const auto result = prepareDrawing(m_source, m_options);
    EXPECT_LE(farthest(before, read(result.text), false), tolerance);
    EXPECT_LE(result.report.fit.largestDeviation, tolerance * plotterUnitsPerMm);
}

TEST_P(AnyDrawing, IsNotChangedBySecondPreparation) {
    m_options.arcs = m_random.whole(0, 3) != 0;
    PrepareOptions again;
    again.arcs = m_options.arcs;
    const std::string text = prepareDrawing(m_source, m_options).text;
    EXPECT_EQ(prepared(text, again).text, text);
    EXPECT_TRUE(isPlainDrawing(text));
}

INSTANTIATE_TEST_SUITE_P(Seeds, AnyDrawing, testing::Range(0U, 120U));

TEST(Preparing, GivesEachPenOnceInOrder) {
    EXPECT_EQ(prepared("SP3;PU0,0;PD10,0;SP1;PU5,5;CI2;SP3;PU20,0;PD30,0;SP0;").text,
              "IN;\nSP1;\nPU5,5;\nCI2;\nSP3;\nPU0,0;\nPD10,0;\nPU20,0;\nPD30,0;\nSP0;\n");
}

TEST(Preparing, JoinsLinesThatWereDrawnOneByOne) {
    std::string drawing = "SP1;";
    for (int i = 0; i < 24; ++i) {
        const Point a = rotated({1000, 0}, i * 15);
        const Point b = rotated({1000, 0}, i * 15 + 15);
        drawing += "PU" + pointText(a) + ";PD" + pointText(b) + ";";
    }
    EXPECT_EQ(prepared(drawing).text, "IN;\nSP1;\nPU0,0;\nCI1000;\nSP0;\n");
}

TEST(Preparing, RefusesWhatCannotBecomeAJob) {
    const auto refusal = [](const std::string& drawing) {
        try {
            prepared(drawing);
        } catch (const RunTimeError& error) {
            return std::string(error.what());
        }
        return std::string();
    };
    EXPECT_EQ(refusal("IN;PU5,5;"), "the drawing holds nothing to draw");
    EXPECT_EQ(refusal("IN;PU5,5;LBtext\x03"),
              "the drawing holds nothing to draw; not carried over: texts (not drawn): 1");
    EXPECT_EQ(refusal("SP9;PD1,1"), "the drawing uses pens above 8 (9); say which pen to take for "
                                    "it, as in --pen 9=1");
    std::string many = "PD";
    for (int i = 0; i < 32769; ++i)
        many += std::to_string(i * 50) + (i % 2 == 0 ? ",0," : ",99,");
    EXPECT_EQ(refusal(many).substr(0, 34), "the prepared drawing has 32768 lin");
}

TEST(Report, SaysWhatWasReadDoneAndLost) {
    const auto result = prepared("VS5;XQ;LBa\x03PD1000,0,1000,1000;PU2000,0;PD;PU;");
    EXPECT_EQ(lossLine(result.report),
              "texts (not drawn): 1, dots (not drawn without a diameter): 1, "
              "unknown XQ: 1");
    EXPECT_EQ(reportText("a.plt", result.report),
              "Drawing: a.plt\n"
              "  Read: LB 1, PD 2, PU 2\n"
              "  Without effect on lines: VS 1\n"
              "  Unknown, passed over: XQ 1\n"
              "  Pen: none is selected; everything is drawn by pen 1\n"
              "  Lost: texts (not drawn): 1\n"
              "  Dots: 1, not drawn without a diameter\n"
              "  Largest deviation: 0.000 mm\n"
              "  Pen 1 Black: 2 lines, 0 arcs, 0 circles\n"
              "  Extents: X 0.000 to 25.000 mm, Y 0.000 to 25.000 mm\n"
              "  Elements: 2\n"
              "  Cut length: 50.000 mm\n"
              "  Air length: 0.000 mm\n");
}

TEST(Names, AreProposedFromTheSource) {
    EXPECT_EQ(preparedName("a/b.c.HPGL"), "a/b.c-torvik.plt");
    EXPECT_EQ(preparedName("plate.svg"), "plate-torvik.plt");
    EXPECT_EQ(preparedName("plate"), "plate-torvik.plt");
}

} // namespace
} // namespace torvik
