// SPDX-License-Identifier: MIT
// Labels: their settings, and their letters as single strokes.
#include "base/text.h"
#include "prepare/source/character_sets.h"
#include "prepare/source/pen_plotter.h"
#include "prepare/source/source_report.h"
#include "prepare/text/text_line.h"

#include <algorithm>
#include <string>
#include <utility>

namespace torvik {
namespace {

constexpr double unitsPerCm = 400;

// The characters that move the pen within a label.
constexpr char backspace = '\b';
constexpr char halfBack = '\t';
constexpr char lineFeed = '\n';
constexpr char lineUp = '\v';
constexpr char carriageReturn = '\r';
constexpr char alternateSet = '\x0e';
constexpr char standardSet = '\x0f';

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
}

int setNumber(const Parameters& parameters) {
    constexpr double highest = 9999;
    const double number = parameters.numbers.empty() ? 0 : std::trunc(parameters.numbers[0]);
    return number >= 0 && number <= highest ? static_cast<int>(number) : 0;
}

} // namespace

// --- settings

void PenPlotter::setTextTerminator(const Parameters& parameters) {
    m_lettering.terminator = parameters.text.empty() ? '\x03' : parameters.text[0];
    m_lettering.writesTerminator = !parameters.numbers.empty() && parameters.numbers[0] == 0;
}

void PenPlotter::setLetterSize(const Parameters& parameters) {
    m_lettering.size.reset();
    m_lettering.relativeSize.reset();
    if (!parameters.numbers.empty() && require(parameters, 2))
        m_lettering.size = Point{parameters.numbers[0], parameters.numbers[1]} * unitsPerCm;
}

void PenPlotter::setLetterSizeInHundredths(const Parameters& parameters) {
    m_lettering.size.reset();
    m_lettering.relativeSize = {0.75, 1.5};
    if (!parameters.numbers.empty() && require(parameters, 2))
        m_lettering.relativeSize = {parameters.numbers[0], parameters.numbers[1]};
}

void PenPlotter::setDirection(const Parameters& parameters, bool isRelative) {
    Point direction{1, 0};
    if (!parameters.numbers.empty()) {
        if (!require(parameters, 2))
            return;
        direction = {parameters.numbers[0], parameters.numbers[1]};
    }
    const double size = std::max(std::fabs(direction.x), std::fabs(direction.y));
    if (size == 0) {
        m_report.lose(Loss::malformed);
        return;
    }
    m_lettering.direction = direction * (1 / size);
    m_lettering.isRelativeDirection = isRelative;
    m_carriage = m_place;
}

void PenPlotter::setLabelDirection(const Parameters& parameters) {
    setDirection(parameters, false);
}

void PenPlotter::setLabelDirectionInHundredths(const Parameters& parameters) {
    setDirection(parameters, true);
}

void PenPlotter::setSlant(const Parameters& parameters) {
    m_lettering.slant = parameters.numbers.empty() ? 0 : parameters.numbers[0];
}

void PenPlotter::setExtraSpace(const Parameters& parameters) {
    const auto& numbers = parameters.numbers;
    m_lettering.extraSpace = {numbers.empty() ? 0 : numbers[0],
                              numbers.size() > 1 ? numbers[1] : 0};
}

void PenPlotter::setLabelOrigin(const Parameters& parameters) {
    const double origin = parameters.numbers.empty() ? 1 : std::trunc(parameters.numbers[0]);
    if ((origin >= 1 && origin <= 9) || (origin >= 11 && origin <= 19))
        m_lettering.origin = static_cast<int>(origin);
    else
        m_report.lose(Loss::malformed);
    m_carriage = m_place;
}

void PenPlotter::setStandardSet(const Parameters& parameters) {
    m_lettering.standardSet = setNumber(parameters);
}

void PenPlotter::setAlternateSet(const Parameters& parameters) {
    m_lettering.alternateSet = setNumber(parameters);
}

void PenPlotter::selectStandardSet(const Parameters&) {
    m_lettering.isAlternate = false;
}

void PenPlotter::selectAlternateSet(const Parameters&) {
    m_lettering.isAlternate = true;
}

// Of a font's properties only the character set is taken, which is number 1.
void PenPlotter::setStandardFont(const Parameters& parameters) {
    const auto& numbers = parameters.numbers;
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2)
        if (numbers[i] == 1)
            setStandardSet({{numbers[i + 1]}, {}});
}

// --- writing

// A move of the pen that leaves the place where the next line begins.
void PenPlotter::moveInLabel(Point by) {
    const Point carriage = m_carriage;
    jump(m_place + by);
    m_carriage = carriage;
}

void PenPlotter::feedLines(double lines) {
    const Point by = LetterGrid(m_lettering, m_frame).line * lines;
    requireOnPaper(m_carriage + by);
    m_carriage = m_carriage + by;
    moveInLabel(by);
}

void PenPlotter::moveByCells(const Parameters& parameters) {
    m_recorder.breakStroke();
    if (parameters.numbers.empty()) {
        jump(m_carriage);
        feedLines(-1);
    } else if (require(parameters, 2)) {
        moveInLabel(LetterGrid(m_lettering, m_frame).cell * parameters.numbers[0]);
        feedLines(parameters.numbers[1]);
    }
}

void PenPlotter::keepLabel(const Parameters& parameters) {
    m_lettering.kept = parameters.text;
}

void PenPlotter::writeKeptLabel(const Parameters&) {
    writeLabel({{}, m_lettering.kept});
}

void PenPlotter::writeLabel(const Parameters& parameters) {
    if (!m_drawsTexts || m_polygon.isOpen()) {
        m_report.lose(Loss::text);
        return;
    }
    m_recorder.breakStroke();
    std::string text(parameters.text);
    if (m_lettering.writesTerminator)
        text += m_lettering.terminator;
    const bool isUtf8 = isUtf8Label(text);
    bool isWritten = false;
    std::string letters;
    for (const char c : text) {
        if (isControl(c)) {
            isWritten = writeLetters(std::exchange(letters, {})) || isWritten;
            obeyInLabel(c);
        } else if (isUtf8) {
            letters += c;
        } else {
            appendLetter(letters, letterOf(static_cast<unsigned char>(c), m_lettering.set()));
        }
    }
    isWritten = writeLetters(letters) || isWritten;
    m_report.texts += isWritten ? 1 : 0;
}

bool PenPlotter::writeLetters(const std::string& letters) {
    if (letters.empty())
        return false;
    LetterGrid grid(m_lettering, m_frame);
    TextLine line = textLine(letters, {FixedPitch{letterWidth, 1}, m_lettering.extraSpace.x});
    const double gap = 1 + m_lettering.extraSpace.x - letterWidth; // behind the last letter
    const Point shift = shiftToLabel(m_lettering.origin, line.width - gap);
    grid.letters.origin = m_place + grid.letters.turn(shift);
    for (const Stroke& stroke : line.strokes)
        drawFigure(mapped(stroke, grid.letters));
    moveInLabel(grid.letters.xAxis * (line.width + shift.x));
    m_report.unknownLetters += line.unknownLetters;
    return !line.strokes.empty() && m_recorder.draws();
}

void PenPlotter::obeyInLabel(char control) {
    const Point cell = LetterGrid(m_lettering, m_frame).cell;
    switch (control) {
    case backspace:
        return moveInLabel(cell * -1);
    case halfBack:
        return moveInLabel(cell * -0.5);
    case lineFeed:
        return feedLines(-1);
    case lineUp:
        return feedLines(1);
    case carriageReturn:
        return jump(m_carriage);
    case alternateSet:
        m_lettering.isAlternate = true;
        break;
    case standardSet:
        m_lettering.isAlternate = false;
        break;
    default:
        break;
    }
}

} // namespace torvik
