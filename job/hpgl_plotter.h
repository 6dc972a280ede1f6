// SPDX-License-Identifier: MIT
// Where the plotter stands while a drawing is read: it performs the five instructions of the reader
// and notes how much of the drawing is read as it is written. Lengths in mm.
#pragma once

#include "job/reading.h"

#include <cstdint>
#include <string_view>

namespace torvik {

struct Drawing;
struct Path;
class Logger;

class HpglPlotter {
public:
    // Appends to the drawing's paths.
    HpglPlotter(Drawing& drawing, Logger& logger) : m_drawing(drawing), m_logger(logger) {}

    // One part of a line up to its semicolon, in which each blank has become a comma. Raises
    // Overflow for a number that does not fit, and RunTimeError for a pen outside 1 to 8 that draws
    // and for more than 32767 elements.
    void perform(std::string_view part);

    // A pen was put away: nothing is drawn any more, only counted.
    bool stopped() const { return m_stopped; }
    // What was read of the parts so far.
    Reading reading() const;

private:
    struct Instruction;
    static const Instruction* find(std::string_view part);

    void selectPen(std::string_view parameters);
    void move(std::string_view parameters);
    void draw(std::string_view parameters);
    void drawArc(std::string_view parameters);
    void drawCircle(std::string_view parameters);
    void passOver(std::string_view part);

    // The number at the start of the text. One that is written otherwise is noted.
    double number(std::string_view text);
    float coordinate(std::string_view text);
    bool readPoint(std::string_view parameters, float& x, float& y);
    void expect(bool asWritten) { m_asWritten = m_asWritten && asWritten; }
    Path started(std::int16_t type) const;
    void append(const Path& path);

    Drawing& m_drawing;
    Logger& m_logger;
    std::int16_t m_pen = 0;
    float m_x = 0;
    float m_y = 0;
    bool m_stopped = false;

    Reading m_reading;
    bool m_asWritten = true;    // the part at hand
    bool m_isElsewhere = false; // a plotter's pen would stand at another place now
    bool m_penDown = false;
    long m_arcsWithPenUp = 0;
};

} // namespace torvik
