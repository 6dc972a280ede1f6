// SPDX-License-Identifier: MIT
#include "prepare/writing/writer.h"

#include "base/logger.h"
#include "base/numbers.h"
#include "job/arc_geometry.h"
#include "job/hpgl_reader.h"
#include "job/records.h"
#include "prepare/fitting/grid.h"

#include <array>
#include <charconv>
#include <initializer_list>
#include <string_view>

namespace torvik {
namespace {

// Where the reader stands, by its own arithmetic.
class ReaderPlace {
public:
    void moveTo(Point place) {
        m_x = toSingle(place.x / plotterUnitsPerMm);
        m_y = toSingle(place.y / plotterUnitsPerMm);
    }

    void drawArc(const Segment& arc) {
        Path path;
        path.sngStartX = m_x;
        path.sngStartY = m_y;
        path.sngCentreX = toSingle(arc.first.x / plotterUnitsPerMm);
        path.sngCentreY = toSingle(arc.first.y / plotterUnitsPerMm);
        GetEndPoint(path, toSingle(arc.sweep), m_logger);
        m_x = path.sngEndX;
        m_y = path.sngEndY;
    }

    Point place() const { return {m_x * plotterUnitsPerMm, m_y * plotterUnitsPerMm}; }

private:
    float m_x = 0;
    float m_y = 0;
    Logger m_logger; // writes nowhere: an arc of no radius is never written
};

class DrawingWriter {
public:
    std::string write(std::span<const Stroke> strokes) {
        put("IN", {});
        int pen = 0;
        for (const Stroke& stroke : strokes) {
            if (stroke.pen != pen)
                put("SP", {static_cast<double>(stroke.pen)});
            pen = stroke.pen;
            if (stroke.isCircle())
                putCircle(stroke);
            else
                putStroke(stroke);
        }
        put("SP", {0});
        return std::move(m_text);
    }

private:
    void putCircle(const Stroke& circle) {
        const Point centre = circle.segments[0].first;
        liftTo(centre);
        put("CI", {distance(centre, circle.start)});
    }

    void putStroke(const Stroke& stroke) {
        liftTo(stroke.start);
        bool isDown = false;
        Point place = stroke.start;
        for (const Segment& segment : stroke.segments) {
            // Single precision drifts along a chain of arcs. A move as short as this does not
            // lift the tool.
            constexpr double drift = 0.02; // plotter units, 0.0005 mm
            if (distance(m_reader.place(), place) > drift) {
                liftTo(place);
                isDown = false;
            }
            if (segment.kind == SegmentKind::arc)
                putArc(segment, isDown);
            else
                putLine(segment.end);
            isDown = true;
            place = segment.end;
        }
    }

    void liftTo(Point place) {
        put("PU", {place.x, place.y});
        m_reader.moveTo(place);
    }

    void putLine(Point end) {
        put("PD", {end.x, end.y});
        m_reader.moveTo(end);
    }

    // The reader draws an arc whether the pen is up or down, a plotter does not.
    void putArc(const Segment& arc, bool isDown) {
        if (!isDown)
            put("PD", {});
        put("AA", {arc.first.x, arc.first.y, arc.sweep});
        m_reader.drawArc(arc);
    }

    void put(std::string_view mnemonic, std::initializer_list<double> numbers) {
        m_text += mnemonic;
        bool isFirst = true;
        for (const double number : numbers) {
            if (!isFirst)
                m_text += ',';
            isFirst = false;
            putNumber(number);
        }
        m_text += ";\n";
    }

    // A whole number of ten-thousandths, whose shortest form has four decimals at most.
    void putNumber(double value) {
        std::array<char, 64> text;
        const double rounded = toGrid(value);
        const auto end = std::to_chars(text.data(), text.data() + text.size(), rounded,
                                       std::chars_format::fixed);
        m_text.append(text.data(), end.ptr);
    }

    std::string m_text;
    ReaderPlace m_reader;
};

} // namespace

std::string writeDrawing(std::span<const Stroke> strokes) {
    return DrawingWriter().write(strokes);
}

} // namespace torvik
