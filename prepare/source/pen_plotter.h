// SPDX-License-Identifier: MIT
// The plotter that a drawing is written for: pen, place, modes, units, polygon buffer. Each
// instruction is one function here; which letters call it stands in instruction_table.h.
#pragma once

#include "prepare/source/frame.h"
#include "prepare/source/lettering.h"
#include "prepare/source/polygon_buffer.h"
#include "prepare/source/source_options.h"
#include "prepare/source/stroke_recorder.h"

#include <string>
#include <string_view>

namespace torvik {

struct SourceReport;

// What stands behind a mnemonic: numbers, or a text.
struct Parameters {
    std::vector<double> numbers;
    std::string_view text;
};

class PenPlotter {
public:
    // In a plain drawing, one of the job's own kind, arcs are drawn with the pen up, too.
    PenPlotter(std::vector<Stroke>& strokes, SourceReport& report, const SourceOptions& options,
               bool isPlain)
        : m_recorder(strokes, report, options.segmentLimit), m_report(report),
          m_roundTurn(options.roundTurn), m_isPlain(isPlain), m_drawsTexts(options.texts) {}

    // The end of the drawing.
    void finish();
    // The character that ends labels.
    char textTerminator() const { return m_lettering.terminator; }

    void ignore(const Parameters&) {}

    // Set-up
    void initialise(const Parameters&);
    void setDefaults(const Parameters&);
    void selectPen(const Parameters&);
    void setPenColour(const Parameters&);
    void setScale(const Parameters&);
    void setCorners(const Parameters&);
    void setCornersInHundredths(const Parameters&);
    void rotate(const Parameters&);
    void setPage(const Parameters&);
    void setTickLengths(const Parameters&);
    void setChordMode(const Parameters&);
    void endPage(const Parameters&);

    // Moves and lines
    void penUp(const Parameters&);
    void penDown(const Parameters&);
    void plotAbsolute(const Parameters&);
    void plotRelative(const Parameters&);
    void plotEncoded(const Parameters&);

    // Arcs and curves
    void arcAbsolute(const Parameters&);
    void arcRelative(const Parameters&);
    void arcThroughAbsolute(const Parameters&);
    void arcThroughRelative(const Parameters&);
    void bezierAbsolute(const Parameters&);
    void bezierRelative(const Parameters&);

    // Figures, which leave the pen where it was
    void circle(const Parameters&);
    void edgeRectangleAbsolute(const Parameters&);
    void edgeRectangleRelative(const Parameters&);
    void edgeWedge(const Parameters&);
    void fillRectangleAbsolute(const Parameters&);
    void fillRectangleRelative(const Parameters&);
    void fillWedge(const Parameters&);
    void tickX(const Parameters&);
    void tickY(const Parameters&);

    // Polygons
    void polygonMode(const Parameters&);
    void edgePolygon(const Parameters&);
    void fillPolygon(const Parameters&);

    // Labels
    void setTextTerminator(const Parameters&);
    void setLetterSize(const Parameters&);
    void setLetterSizeInHundredths(const Parameters&);
    void setLabelDirection(const Parameters&);
    void setLabelDirectionInHundredths(const Parameters&);
    void setSlant(const Parameters&);
    void setExtraSpace(const Parameters&);
    void setLabelOrigin(const Parameters&);
    void setStandardSet(const Parameters&);
    void setAlternateSet(const Parameters&);
    void selectStandardSet(const Parameters&);
    void selectAlternateSet(const Parameters&);
    void setStandardFont(const Parameters&);
    void moveByCells(const Parameters&);
    void writeLabel(const Parameters&);
    void keepLabel(const Parameters&);
    void writeKeptLabel(const Parameters&);

    // What is not carried over
    void loseSymbols(const Parameters&);
    void loseDashes(const Parameters&);
    void loseClipping(const Parameters&);

private:
    bool require(const Parameters& parameters, std::size_t count);
    Point userPlace() const { return m_frame.toUser(m_place); }
    void setDown(bool down);
    void jump(Point place);
    void travel(const Segment& segment);
    void plotPairs(const Parameters& parameters);
    void moveToUser(Point user, bool relative);

    void noteChords(const Parameters& parameters, std::size_t place);
    void drawArc(Point centre, double sweep);
    void drawArcThrough(Point between, Point end);
    void drawBeziers(const Parameters& parameters, bool relative);
    void addArc(Stroke& stroke, Point centre, double sweep) const;
    void travelAlong(const Stroke& stroke);
    Stroke circleAbout(double radius) const;

    Stroke rectangle(Point corner) const;
    Stroke wedge(const Parameters& parameters) const;
    void drawFigure(Stroke figure);
    void fillFigure(Stroke figure);
    void drawTick(Point direction, double corners);

    void setDirection(const Parameters& parameters, bool isRelative);
    void moveInLabel(Point by);
    void feedLines(double lines);
    bool writeLetters(const std::string& letters); // false where they draw nothing
    void obeyInLabel(char control);

    StrokeRecorder m_recorder;
    SourceReport& m_report;
    double m_roundTurn;
    bool m_isPlain;
    bool m_drawsTexts;
    Frame m_frame;
    Lettering m_lettering;
    PolygonBuffer m_polygon;
    Point m_place;    // plotter units
    Point m_carriage; // where a label's next line begins
    bool m_down = false;
    bool m_relative = false;
    bool m_chordsAreAngles = true;
    Point m_tick{0.5, 0.5}; // hundredths of P2 - P1: above or right, below or left
};

} // namespace torvik
