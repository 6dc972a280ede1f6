// SPDX-License-Identifier: MIT
// Set-up, moves, lines and polygons; arcs and figures stand in pen_plotter_figures.cpp.
#include "prepare/source/pen_plotter.h"

#include "prepare/source/polyline_encoded.h"
#include "prepare/source/source_report.h"

#include <algorithm>
#include <array>
#include <utility>

namespace torvik {
namespace {

constexpr double mostFractionBits = 26;

} // namespace

void PenPlotter::finish() {
    m_recorder.lift();
}

bool PenPlotter::require(const Parameters& parameters, std::size_t count) {
    const bool enough = parameters.numbers.size() >= count;
    if (!enough)
        m_report.lose(Loss::malformed);
    return enough;
}

// --- set-up

void PenPlotter::initialise(const Parameters& parameters) {
    m_recorder.lift();
    m_recorder.keepPenZero(false);
    m_down = false;
    m_frame = Frame();
    m_place = {};
    setDefaults(parameters);
}

void PenPlotter::setDefaults(const Parameters&) {
    m_relative = false;
    m_frame.unscale();
    m_polygon.clear();
    m_chordsAreAngles = true;
    m_lettering = {};
    m_carriage = m_place;
    m_tick = {0.5, 0.5};
}

void PenPlotter::selectPen(const Parameters& parameters) {
    constexpr double highest = 32767;
    const double number = parameters.numbers.empty() ? 0 : std::trunc(parameters.numbers[0]);
    if (number >= 0 && number <= highest)
        m_recorder.selectPen(static_cast<int>(number));
    else
        m_report.lose(Loss::malformed);
}

void PenPlotter::setScale(const Parameters& parameters) {
    if (!m_frame.setScale(parameters.numbers))
        m_report.lose(Loss::malformed);
    m_report.guessedCorners = m_report.guessedCorners || m_frame.guessedCorners();
}

void PenPlotter::setCorners(const Parameters& parameters) {
    if (!m_frame.setCorners(parameters.numbers))
        m_report.lose(Loss::malformed);
}

void PenPlotter::setCornersInHundredths(const Parameters& parameters) {
    if (!m_frame.setCornersInHundredths(parameters.numbers))
        m_report.lose(Loss::malformed);
}

void PenPlotter::rotate(const Parameters& parameters) {
    if (!m_frame.setRotation(parameters.numbers.empty() ? 0 : parameters.numbers[0]))
        m_report.lose(Loss::malformed);
}

void PenPlotter::setPage(const Parameters& parameters) {
    if (!m_frame.setPage(parameters.numbers))
        m_report.lose(Loss::malformed);
}

void PenPlotter::setTickLengths(const Parameters& parameters) {
    const auto& numbers = parameters.numbers;
    if (numbers.empty())
        m_tick = {0.5, 0.5};
    else
        m_tick = {numbers[0], numbers.size() > 1 ? numbers[1] : 0};
}

void PenPlotter::setChordMode(const Parameters& parameters) {
    m_chordsAreAngles = parameters.numbers.empty() || parameters.numbers[0] == 0;
}

void PenPlotter::endPage(const Parameters&) {
    m_recorder.endPage();
}

// --- moves and lines

void PenPlotter::setDown(bool down) {
    if (down && !m_down && !m_polygon.isOpen())
        m_recorder.land(m_place);
    if (!down && m_down && !m_polygon.isOpen())
        m_recorder.lift();
    m_down = down;
}

void PenPlotter::jump(Point place) {
    requireOnPaper(place);
    m_place = place;
    m_carriage = place;
}

void PenPlotter::travel(const Segment& segment) {
    requireOnPaper(segment.end);
    const Point from = std::exchange(m_place, segment.end);
    m_carriage = m_place;
    if (segment.kind == SegmentKind::line && segment.end == from)
        return;
    if (m_polygon.isOpen())
        m_polygon.travel(segment, m_down);
    else if (m_down)
        m_recorder.draw(from, segment);
}

void PenPlotter::penUp(const Parameters& parameters) {
    setDown(false);
    plotPairs(parameters);
}

void PenPlotter::penDown(const Parameters& parameters) {
    setDown(true);
    plotPairs(parameters);
}

void PenPlotter::plotAbsolute(const Parameters& parameters) {
    m_relative = false;
    plotPairs(parameters);
}

void PenPlotter::plotRelative(const Parameters& parameters) {
    m_relative = true;
    plotPairs(parameters);
}

void PenPlotter::plotPairs(const Parameters& parameters) {
    const auto& numbers = parameters.numbers;
    m_recorder.expect(numbers.size() / 2);
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2)
        moveToUser({numbers[i], numbers[i + 1]}, m_relative);
    if (numbers.size() % 2 != 0)
        m_report.lose(Loss::malformed);
}

void PenPlotter::moveToUser(Point user, bool relative) {
    travel(
        lineSegment(relative ? m_place + m_frame.vectorToPlotter(user) : m_frame.toPlotter(user)));
}

void PenPlotter::plotEncoded(const Parameters& parameters) {
    EncodedReader reader(parameters.text);
    double unit = 1;
    char numberMeans = ' '; // a coordinate, or what the last flag asked for
    bool isUp = false;
    bool isAbsolute = false;
    std::array<double, 2> pair{};
    std::size_t inPair = 0;
    for (auto item = reader.next(); item != EncodedReader::Item::end; item = reader.next()) {
        if (item == EncodedReader::Item::stray) {
            ++m_report.strayCharacters;
        } else if (item == EncodedReader::Item::flag) {
            isUp = isUp || reader.flag() == '<';
            isAbsolute = isAbsolute || reader.flag() == '=';
            if (reader.flag() == ':' || reader.flag() == '>')
                numberMeans = reader.flag();
        } else if (numberMeans == ':') {
            selectPen({{reader.number()}, {}});
            numberMeans = ' ';
        } else if (numberMeans == '>') {
            unit = std::exp2(-std::clamp(reader.number(), -mostFractionBits, mostFractionBits));
            numberMeans = ' ';
        } else {
            pair[inPair++] = reader.number() * unit;
            if (inPair < 2)
                continue;
            inPair = 0;
            setDown(!isUp);
            moveToUser({pair[0], pair[1]}, !isAbsolute);
            isUp = false;
            isAbsolute = false;
        }
    }
    if (inPair != 0)
        m_report.lose(Loss::malformed);
    if (isUp)
        setDown(false);
}

// --- polygons

void PenPlotter::polygonMode(const Parameters& parameters) {
    const double mode = parameters.numbers.empty() ? 0 : parameters.numbers[0];
    if (mode == 0 && !m_polygon.isOpen()) {
        m_recorder.breakStroke();
        m_polygon.open(m_place, m_down);
    } else if (mode == 1 && m_polygon.isOpen()) {
        m_polygon.closeSubpolygon(m_down);
    } else if (mode == 2 && m_polygon.isOpen()) {
        jump(m_polygon.close(m_down));
        m_down = m_polygon.wasPenDown();
    } else {
        m_report.lose(Loss::malformed);
    }
}

void PenPlotter::edgePolygon(const Parameters&) {
    const int pen = m_recorder.pen();
    if (pen != 0 && m_polygon.outlinedBy() == pen)
        return;
    for (Stroke& edge : m_polygon.edges())
        m_recorder.addFigure(std::move(edge));
    m_polygon.setEdgedBy(pen);
}

void PenPlotter::fillPolygon(const Parameters&) {
    m_report.lose(Loss::fill);
    const int pen = m_recorder.pen();
    const bool isEdged = pen != 0 && m_polygon.edgedBy() == pen;
    for (Stroke& outline : isEdged ? m_polygon.edges(false) : m_polygon.outlines())
        m_recorder.addFigure(std::move(outline));
    m_polygon.setOutlinedBy(pen);
}

void PenPlotter::setPenColour(const Parameters& parameters) {
    const auto& numbers = parameters.numbers;
    if (numbers.empty() || numbers[0] == 0)
        m_recorder.keepPenZero(numbers.size() >= 4);
}

// --- what is not carried over

void PenPlotter::loseSymbols(const Parameters& parameters) {
    if (!parameters.text.empty() || !parameters.numbers.empty())
        m_report.lose(Loss::symbols);
}

void PenPlotter::loseDashes(const Parameters& parameters) {
    if (!parameters.numbers.empty())
        m_report.lose(Loss::dashes);
}

void PenPlotter::loseClipping(const Parameters& parameters) {
    if (!parameters.numbers.empty())
        m_report.lose(Loss::clipping);
}

} // namespace torvik
