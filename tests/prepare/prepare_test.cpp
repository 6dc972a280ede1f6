// SPDX-License-Identifier: MIT
// The whole road from a drawing to a prepared one: what holds for any drawing, and a few by hand.
#include "job/hpgl_reader.h"
#include "prepare/arcs.h"
#include "prepare/fitting/flatten.h"
#include "prepare/prepare.h"
#include "prepare/report.h"
#include "stroke_text.h"

#include <gtest/gtest.h>
#include <random>

namespace torvik {
namespace {

constexpr double tolerance = 0.01 * plotterUnitsPerMm;

PreparedDrawing prepared(const std::string& drawing, const PrepareOptions& options = {}) {
    return prepareDrawing(readHpgl(drawing, "test.plt"), options);
}

// Strokes as drawings have them, at whole units or anywhere.
class RandomStrokes {
public:
    explicit RandomStrokes(unsigned seed) : m_random(seed), m_wholeUnits(whole(0, 1) == 0) {}

    double number(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(m_random);
    }
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }

    Stroke stroke() {
        m_stroke = {whole(1, 8), written({number(0, 8000), number(0, 8000)}), {}};
        m_direction = number(0, 360);
        for (int i = whole(1, 10); i > 0; --i)
            addPart();
        if (whole(0, 3) == 0)
            addLine(m_stroke.start);
        return m_stroke;
    }

private:
    void addPart() {
        const Point from = m_stroke.end();
        const double bend = number(-20, 20);
        switch (whole(0, 6)) {
        case 0:
            return addLine(from + anywhere(500));
        case 1: // chords of an arc
            return addLines(static_cast<int>(number(1, 350) / (std::fabs(bend) + 4)) + 1,
                            number(5, 200), bend, 0, 0);
        case 2: // a jittered line
            return addLines(whole(2, 40), number(1, 60), 0, 0, number(0, 0.6));
        case 3: // a wiggle
            return addLines(whole(3, 60), number(3, 30), bend, 3, 0);
        case 4:
            return addArc(from + anywhere(600));
        case 5: // beside the X axis
            return addArc(from + Point{number(100, 4000), number(-5, 5)});
        default:
            m_stroke.segments.push_back(
                curveSegment(from + anywhere(800), from + anywhere(800), from + anywhere(800)));
        }
    }

    // Each turns from the one before by the bend and up to the noise.
    void addLines(int count, double size, double bend, double noise, double jitter) {
        for (Point place = m_stroke.end(); count > 0; --count) {
            m_direction += bend + number(-noise, noise);
            place = place + rotated({size, 0}, m_direction);
            addLine(place + anywhere(jitter));
        }
    }
    void addLine(Point end) { m_stroke.segments.push_back(lineSegment(written(end))); }
    void addArc(Point centre) {
        m_stroke.segments.push_back(arcSegment(m_stroke.end(), centre, number(-350, 350)));
    }
    Point anywhere(double size) { return {number(-size, size), number(-size, size)}; }
    Point written(Point p) const {
        return m_wholeUnits ? Point{std::round(p.x), std::round(p.y)} : p;
    }

    std::mt19937 m_random;
    bool m_wholeUnits;
    Stroke m_stroke;
    double m_direction = 0;
};

// A line or an arc with its pen and start.
struct Element {
    int pen;
    Point start;
    Segment segment;

    Point at(double part) const {
        return isArc(segment) ? pointOnArc(start, segment, part)
                              : start + (segment.end - start) * part;
    }
    double distanceTo(Point point) const {
        return isArc(segment) ? distanceToArc(start, segment, point)
                              : distanceToLine(start, segment.end, point);
    }
};

// The strokes' own lines and arcs, curves as very short chords. What is written of them is read
// back and compared before it is given away, and so they stand for the text.
std::vector<Element> elementsOf(const std::vector<Stroke>& strokes) {
    std::vector<Element> elements;
    for (const Stroke& stroke : strokes) {
        Point place = stroke.start;
        const auto add = [&](const Segment& segment) {
            elements.push_back({stroke.pen, place, segment});
            place = segment.end;
        };
        for (const Segment& segment : stroke.segments)
            if (segment.kind != SegmentKind::curve)
                add(segment);
            else
                for (const Point& end : flattenCurve(place, segment, 0.004))
                    add(lineSegment(end));
    }
    return elements;
}

// How many points of the elements lie beyond the tolerance from all others of their pen. The search
// begins where the point before was found.
int countAstray(const std::vector<Element>& from, const std::vector<Element>& to,
                bool withinChords) {
    int astray = 0;
    std::size_t last = 0;
    for (const Element& element : from)
        for (const double part : {0.31, 0.62, 1.0}) {
            if (part < 1 && isLine(element.segment) && !withinChords)
                continue;
            const Point point = element.at(part);
            std::size_t tried = 0;
            for (; tried < to.size(); ++tried, last = (last + 1) % to.size())
                if (to[last].pen == element.pen && to[last].distanceTo(point) <= tolerance)
                    break;
            astray += tried == to.size() ? 1 : 0;
        }
    return astray;
}

TEST(AnyDrawing, LiesWithinTheToleranceAndIsNotChangedByASecondPreparation) {
    for (unsigned seed = 0; seed < 120; ++seed) {
        SCOPED_TRACE(seed);
        RandomStrokes random(seed);
        SourceDrawing source;
        for (int i = random.whole(1, 4); i > 0; --i)
            source.strokes.push_back(random.stroke());
        PrepareOptions options;
        PrepareOptions again;
        options.optimize = random.whole(0, 3) == 0;
        const auto before = elementsOf(source.strokes);
        for (const bool arcs : {true, false}) {
            options.arcs = again.arcs = arcs;
            const auto result = prepareDrawing(source, options);
            const auto after = elementsOf(result.strokes);
            EXPECT_EQ(countAstray(before, after, !arcs), 0);
            EXPECT_LE(result.report.fit.largestDeviation, tolerance);
            EXPECT_EQ(arcs ? 0 : countAstray(after, before, true), 0);
            EXPECT_EQ(prepared(result.text, again).text, result.text);
            EXPECT_TRUE(isPlainDrawing(result.text));
        }
    }
}

TEST(Preparing, GivesEachPenOnceInOrder) {
    EXPECT_EQ(prepared("SP3;PU0,0;PD10,0;SP1;PU5,5;CI2;SP3;PU20,0;PD30,0;SP0;").text,
              "IN;\nSP1;\nPU5,5;\nCI2;\nSP3;\nPU0,0;\nPD10,0;\nPU20,0;\nPD30,0;\nSP0;\n");
}

TEST(Preparing, JoinsLinesThatWereDrawnOneByOne) {
    std::string drawing = "SP1;";
    for (int i = 0; i < 360; i += 15)
        drawing += "PU" + pointText(rotated({1000, 0}, i)) + ";PD" +
                   pointText(rotated({1000, 0}, i + 15)) + ";";
    EXPECT_EQ(prepared(drawing).text, "IN;\nSP1;\nPU0,0;\nCI1000;\nSP0;\n");
}

TEST(Preparing, LeavesNothingOfWhatHasNoSize) {
    EXPECT_EQ(prepared("PU5,5;EW0,0,9;PU9,9;PM0;PD9,9;PM2;FP;PU0,0;PD40,0").text,
              "IN;\nSP1;\nPU0,0;\nPD40,0;\nSP0;\n");
    EXPECT_EQ(refusal([] { prepared("EW0,0,9;"); }), "the drawing holds nothing to draw");
}

TEST(Preparing, RefusesWhatCannotBecomeAJob) {
    const auto refused = [](const std::string& drawing) {
        return refusal([&] { prepared(drawing); });
    };
    EXPECT_EQ(refused("IN;PU5,5;"), "the drawing holds nothing to draw");
    EXPECT_EQ(refused("IN;PU5,5;UC1"),
              "the drawing holds nothing to draw; not carried over: symbols and "
              "characters of the drawing's own (not drawn): 1");
    std::string many = "PD";
    for (int i = 0; i < 32769; ++i)
        many += std::to_string(i * 50) + (i % 2 == 0 ? ",0," : ",99,");
    EXPECT_EQ(refused(many).substr(0, 34), "the prepared drawing has 32768 lin");
}

TEST(Report, SaysWhatWasReadDoneAndLost) {
    const auto result = prepared("VS5;XQ;UC1;PD1000,0,1000,1000;PU2000,0;PD;PU;");
    EXPECT_EQ(lossLine(result.report), "symbols and characters of the drawing's own (not drawn): "
                                       "1, dots (not drawn without a diameter): 1, "
                                       "unknown XQ: 1");
    EXPECT_EQ(reportText("a.plt", result.report),
              "Drawing: a.plt\n  Read: PD 2, PU 2, UC 1\n  Without effect on lines: VS 1\n"
              "  Unknown, passed over: XQ 1\n"
              "  Pen: none is selected; everything is drawn by pen 1\n"
              "  Lost: symbols and characters of the drawing's own (not drawn): 1\n  Dots: 1, not "
              "drawn without a diameter\n"
              "  Largest deviation: 0.000 mm\n  Pen 1 Black: 2 lines, 0 arcs, 0 circles\n"
              "  Extents: X 0.000 to 25.000 mm, Y 0.000 to 25.000 mm\n  Elements: 2\n"
              "  Cut length: 50.000 mm\n  Air length: 0.000 mm\n");
}

} // namespace
} // namespace torvik
