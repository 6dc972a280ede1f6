// SPDX-License-Identifier: MIT
#include "job/hpgl_plotter.h"

#include "base/errors.h"
#include "base/numbers.h"
#include "job/arc_geometry.h"
#include "job/characters.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "job/plotter_language.h"

#include <algorithm>
#include <array>
#include <limits>

namespace torvik {
namespace {

constexpr double wholeTurn = 360;

std::string_view withoutLastCommas(std::string_view text) {
    while (text.ends_with(','))
        text.remove_suffix(1);
    return text;
}

// The first three items of a list at commas, and the rest; an item that is missing is empty.
std::array<std::string_view, 4> items(std::string_view list) {
    std::array<std::string_view, 4> result;
    for (std::size_t i = 0; i < 3; ++i) {
        const auto comma = std::min(list.find(','), list.size());
        result[i] = list.substr(0, comma);
        list.remove_prefix(std::min(comma + 1, list.size()));
    }
    result[3] = withoutLastCommas(list);
    return result;
}

bool isPlainOrEmpty(std::string_view text) {
    return text.empty() || isNumber(text);
}

} // namespace

struct HpglPlotter::Instruction {
    std::array<char, 2> mnemonic;
    void (HpglPlotter::*perform)(std::string_view parameters);
};

// The whole language: pen select (0 or none ends the drawing), move, draw a line, draw an arc
// about a centre by a sweep, draw a circle about the current point.
const HpglPlotter::Instruction* HpglPlotter::find(std::string_view part) {
    static constexpr std::array<Instruction, 5> instructions{{
        {{'P', 'D'}, &HpglPlotter::draw},
        {{'P', 'U'}, &HpglPlotter::move},
        {{'A', 'A'}, &HpglPlotter::drawArc},
        {{'C', 'I'}, &HpglPlotter::drawCircle},
        {{'S', 'P'}, &HpglPlotter::selectPen},
    }};
    if (part.size() >= 2)
        for (const Instruction& instruction : instructions)
            if (instruction.mnemonic[0] == part[0] && instruction.mnemonic[1] == part[1])
                return &instruction;
    return nullptr;
}

void HpglPlotter::perform(std::string_view part) {
    const Instruction* const instruction = m_stopped ? nullptr : find(part);
    if (instruction == nullptr) {
        passOver(part);
        return;
    }
    m_asWritten = true;
    (this->*instruction->perform)(part.substr(2));
    if (!m_asWritten)
        ++m_reading.lost;
}

void HpglPlotter::passOver(std::string_view part) {
    if (part.find_first_not_of(',') == std::string_view::npos)
        return;
    // A last move after the end is no loss, unless an instruction hangs on it.
    const bool isLastMove = m_stopped && (part.starts_with("PU") || part.starts_with("SP")) &&
                            std::none_of(part.begin() + 2, part.end(), isLetter);
    if (!isLastMove && isLoss(part))
        ++m_reading.lost;
    else
        ++m_reading.harmless;
    if (isInitialize(part)) {
        m_isElsewhere = m_isElsewhere || m_x != 0 || m_y != 0;
        m_penDown = false;
    }
    m_reading.isPlain = m_reading.isPlain && (part == "IN" || isLastMove);
}

Reading HpglPlotter::reading() const {
    Reading reading = m_reading;
    reading.isPlain = reading.isPlain && reading.lost == 0;
    // In a drawing of our own they are meant to be drawn; a plotter would only move.
    if (!reading.isPlain)
        reading.lost += m_arcsWithPenUp;
    return reading;
}

double HpglPlotter::number(std::string_view text) {
    if (const auto plain = plainNumber(text))
        return *plain;
    expect(isNumber(text));
    return leadingNumber(text);
}

float HpglPlotter::coordinate(std::string_view text) {
    return toSingle(number(text) / plotterUnitsPerMm);
}

void HpglPlotter::selectPen(std::string_view parameters) {
    const double pen = leadingNumber(parameters);
    const std::string_view text = withoutLastCommas(parameters);
    expect(parameters.empty() || (isNumber(text) && pen >= 0 && pen == std::trunc(pen)));
    if (pen <= 0)
        m_stopped = true;
    else
        m_pen = toInt16(pen);
}

void HpglPlotter::move(std::string_view parameters) {
    m_penDown = false;
    if (readPoint(parameters, m_x, m_y))
        m_isElsewhere = false;
}

void HpglPlotter::draw(std::string_view parameters) {
    m_penDown = true;
    Path path = started(straightLine);
    if (!readPoint(parameters, path.sngEndX, path.sngEndY))
        return;
    expect(!m_isElsewhere);
    m_isElsewhere = false;
    append(path);
}

void HpglPlotter::drawArc(std::string_view parameters) {
    const auto [centreX, centreY, degrees, rest] = items(parameters);
    const double written = number(degrees);
    const float sweep = toSingle(written);
    Path path = started(sweep > 0 ? arcCounterClockwise : arcClockwise);
    path.sngCentreX = coordinate(centreX);
    path.sngCentreY = coordinate(centreY);
    GetEndPoint(path, sweep, m_logger);
    expect(isPlainOrEmpty(rest) && !m_isElsewhere && path.sngRadius != 0 && written != 0 &&
           std::fabs(written) <= wholeTurn);
    if (!m_penDown && m_asWritten)
        ++m_arcsWithPenUp;
    append(path);
}

void HpglPlotter::drawCircle(std::string_view parameters) {
    const auto [size, chord, none, rest] = items(parameters);
    const float radius = coordinate(size);
    Path path = started(arcCounterClockwise);
    path.sngCentreX = m_x;
    path.sngCentreY = m_y;
    path.sngStartY = toSingle(double{m_y} + radius);
    GetEndPoint(path, 360, m_logger);
    expect(isPlainOrEmpty(chord) && none.empty() && rest.empty() && !m_isElsewhere &&
           path.sngRadius != 0);
    append(path);
    m_isElsewhere = true; // a plotter goes back to the centre
}

// The first pair of a list of coordinates; false, and nothing read, where there is no comma.
bool HpglPlotter::readPoint(std::string_view parameters, float& x, float& y) {
    const auto comma = parameters.find(',');
    if (comma == std::string_view::npos) {
        expect(parameters.empty());
        return false;
    }
    x = coordinate(parameters.substr(0, comma));
    // What follows behind the second is passed over.
    const std::string_view second = parameters.substr(comma + 1);
    if (const auto plain = plainNumber(second)) {
        y = toSingle(*plain / plotterUnitsPerMm);
        return true;
    }
    expect(isNumber(withoutLastCommas(second)));
    y = toSingle(leadingNumber(second) / plotterUnitsPerMm);
    return true;
}

Path HpglPlotter::started(std::int16_t type) const {
    Path path;
    path.intType = type;
    path.intPen = m_pen;
    path.sngStartX = m_x;
    path.sngStartY = m_y;
    return path;
}

void HpglPlotter::append(const Path& path) {
    if (m_pen < 1 || m_pen > penCount)
        throw RunTimeError("pen " + std::to_string(m_pen) +
                           " draws here, but a drawing may use the pens 1 to 8 only");
    if (m_drawing.gintPathCount == std::numeric_limits<std::int16_t>::max())
        throw RunTimeError("the drawing has more than 32767 lines, arcs and circles");
    m_drawing.gudtPaths.append(path);
    ++m_drawing.gintPathCount;
    m_x = path.sngEndX;
    m_y = path.sngEndY;
}

} // namespace torvik
