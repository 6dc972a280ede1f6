// SPDX-License-Identifier: MIT
#include "prepare/svg/path_data.h"

#include "job/characters.h"
#include "prepare/svg/text_reader.h"

#include <array>
#include <span>

namespace torvik::svg {
namespace {

class PathReader {
public:
    PathReader(std::string_view data, StrokeBuilder& builder)
        : m_reader(data), m_builder(builder) {}

    bool read();

private:
    // A command's numbers; false where they end early.
    bool takeNumbers(std::span<double> numbers);
    bool takeFlag(bool& flag);
    bool takePoints(std::span<Point> points);
    bool perform(char command);
    bool move();
    bool line(char command);
    bool curve(bool isSmooth);
    bool quadratic(bool isSmooth);
    bool arc();

    Point from() const { return m_isRelative ? m_builder.place() : Point{}; }

    TextReader m_reader;
    StrokeBuilder& m_builder;
    bool m_isRelative = false;
    char m_before = '\0'; // the last command, in capitals
    Point m_lastHandle;   // of the last curve
};

bool PathReader::takeNumbers(std::span<double> numbers) {
    for (double& number : numbers) {
        const auto read = m_reader.takeNumber();
        if (!read)
            return false;
        number = *read;
        m_reader.skipSeparator();
    }
    return true;
}

bool PathReader::takeFlag(bool& flag) {
    flag = m_reader.peek() == '1';
    if (!flag && m_reader.peek() != '0')
        return false;
    m_reader.skip(1);
    m_reader.skipSeparator();
    return true;
}

bool PathReader::takePoints(std::span<Point> points) {
    const Point origin = from();
    for (Point& point : points) {
        std::array<double, 2> numbers{};
        if (!takeNumbers(numbers))
            return false;
        point = origin + Point{numbers[0], numbers[1]};
    }
    return true;
}

bool PathReader::move() {
    std::array<Point, 1> point;
    if (!takePoints(point))
        return false;
    m_builder.moveTo(point[0]);
    return true;
}

bool PathReader::line(char command) {
    std::array<double, 2> numbers{};
    if (!takeNumbers(std::span(numbers).first(command == 'L' ? 2 : 1)))
        return false;
    const Point place = m_builder.place();
    const Point origin = from();
    if (command == 'L')
        m_builder.lineTo(origin + Point{numbers[0], numbers[1]});
    else if (command == 'H')
        m_builder.lineTo({origin.x + numbers[0], place.y});
    else
        m_builder.lineTo({place.x, origin.y + numbers[0]});
    return true;
}

bool PathReader::curve(bool isSmooth) {
    const Point place = m_builder.place();
    const bool goesOn = m_before == 'C' || m_before == 'S';
    std::array<Point, 3> points{goesOn ? place * 2 - m_lastHandle : place, {}, {}};
    if (!takePoints(std::span(points).subspan(isSmooth ? 1 : 0)))
        return false;
    m_lastHandle = points[1];
    m_builder.curveTo(points[0], points[1], points[2]);
    return true;
}

bool PathReader::quadratic(bool isSmooth) {
    const Point place = m_builder.place();
    const bool goesOn = m_before == 'Q' || m_before == 'T';
    std::array<Point, 2> points{goesOn ? place * 2 - m_lastHandle : place, {}};
    if (!takePoints(std::span(points).subspan(isSmooth ? 1 : 0)))
        return false;
    m_lastHandle = points[0];
    const auto towards = [&](Point end) { return end + (m_lastHandle - end) * (2.0 / 3); };
    m_builder.curveTo(towards(place), towards(points[1]), points[1]);
    return true;
}

bool PathReader::arc() {
    std::array<double, 3> numbers{};
    EllipticalArc arc;
    std::array<Point, 1> end;
    if (!takeNumbers(numbers) || !takeFlag(arc.isLarge) || !takeFlag(arc.isPositive) ||
        !takePoints(end))
        return false;
    arc.radiusX = numbers[0];
    arc.radiusY = numbers[1];
    arc.turn = numbers[2];
    m_builder.arcTo(arc, end[0]);
    return true;
}

bool PathReader::perform(char command) {
    switch (command) {
    case 'M':
        return move();
    case 'L':
    case 'H':
    case 'V':
        return line(command);
    case 'C':
    case 'S':
        return curve(command == 'S');
    case 'Q':
    case 'T':
        return quadratic(command == 'T');
    case 'A':
        return arc();
    case 'Z':
        m_builder.close();
        return true;
    default:
        return false;
    }
}

bool PathReader::read() {
    char command = '\0';
    for (m_reader.skipBlanks(); !m_reader.atEnd(); m_reader.skipBlanks()) {
        if (isLetter(m_reader.peek())) {
            m_isRelative = m_reader.peek() >= 'a';
            command = toCapital(m_reader.peek());
            m_reader.skip(1);
            m_reader.skipBlanks();
        } else if (command == 'Z' || command == '\0') {
            return false;
        }
        const bool isFirst = m_before == '\0';
        if ((isFirst && command != 'M') || !perform(command))
            return false;
        m_before = command;
        if (command == 'M')
            command = 'L'; // pairs that follow a move are lines
    }
    return true;
}

} // namespace

bool drawPathData(std::string_view data, StrokeBuilder& builder) {
    return isWord(trimmed(data), "none") || PathReader(data, builder).read();
}

} // namespace torvik::svg
