// SPDX-License-Identifier: MIT
#include "prepare/dxf/texts.h"

#include "prepare/affine.h"
#include "prepare/arcs.h"
#include "prepare/dxf/document.h"
#include "prepare/dxf/text_codes.h"
#include "prepare/text/text_line.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace torvik::dxf {
namespace {

constexpr int textCode = 1;
constexpr int placeCode = 10;
constexpr int heightCode = 40;
constexpr int turnCode = 50;

// Of capital letters.
constexpr double depthBelowLine = 1.0 / 3;
constexpr double lineStep = 5.0 / 3;

void append(std::vector<Stroke>& strokes, const TextLine& line, const Affine& map) {
    for (const Stroke& stroke : line.strokes)
        strokes.push_back(mapped(stroke, map));
}

// How texts of one line stand at their place.
enum class Across { left, centre, right, aligned, middle, fit };
enum class Upright { baseline, bottom, middle, top };

class LineOfText {
public:
    explicit LineOfText(const Entity& entity)
        : m_entity(entity), m_line(textLine(plainText(utf8Of(entity.text(textCode))))),
          m_across(static_cast<Across>(entity.integer(acrossCode))),
          m_upright(static_cast<Upright>(entity.integer(entity.kind() == "TEXT" ? 73 : 74))),
          m_size(std::fabs(entity.number(heightCode))), m_width(entity.number(widthCode, 1)) {}

    DrawnText draw() {
        std::vector<Stroke> strokes;
        const Affine lying = place();
        append(strokes, m_line, lying * letters());
        return {inPlane(m_entity, std::move(strokes)), m_line.unknownLetters};
    }

private:
    static constexpr int secondPlaceCode = 11;
    static constexpr int widthCode = 41;
    static constexpr int slantCode = 51;
    static constexpr int mirrorCode = 71;
    static constexpr int acrossCode = 72;

    // Where and how the line lies; between two places it takes its size and turn from them.
    Affine place() {
        const Point first = m_entity.point(placeCode);
        const bool hasSecond = m_entity.has(secondPlaceCode);
        const Point second = hasSecond ? m_entity.point(secondPlaceCode) : first;
        if (m_across == Across::aligned || m_across == Across::fit) {
            const double room = distance(first, second);
            const double natural = m_line.width * m_size * m_width;
            if (hasSecond && room > 0 && natural > 0) {
                if (m_across == Across::aligned)
                    m_size *= room / natural;
                else
                    m_width *= room / natural;
                return moved(first) * turned(angleBetween({1, 0}, second - first));
            }
        }
        const bool isPlain = m_across == Across::left && m_upright == Upright::baseline;
        return moved(isPlain ? first : second) * turned(m_entity.number(turnCode, 0));
    }

    Affine letters() const {
        constexpr int leftRight = 2;
        constexpr int upDown = 4;
        const double lean = std::tan(radians(m_entity.number(slantCode, 0)));
        const Affine slanted{{1, 0}, {lean, 1}, {}};
        return scaled(m_entity.flag(leftRight, mirrorCode) ? -m_size : m_size,
                      m_entity.flag(upDown, mirrorCode) ? -m_size : m_size) *
               slanted * scaled(m_width, 1) * moved({-shift(), -rise()});
    }

    double shift() const {
        switch (m_across) {
        case Across::centre:
        case Across::middle:
            return m_line.width / 2;
        case Across::right:
            return m_line.width;
        default:
            return 0;
        }
    }

    double rise() const {
        if (m_across == Across::middle)
            return 0.5;
        switch (m_upright) {
        case Upright::bottom:
            return -depthBelowLine;
        case Upright::middle:
            return 0.5;
        case Upright::top:
            return 1;
        default:
            return 0;
        }
    }

    const Entity& m_entity;
    TextLine m_line;
    Across m_across;
    Upright m_upright;
    double m_size;
    double m_width;
};

bool isPartOfText(const Group& group) {
    constexpr int partCode = 3;
    return group.code == partCode || group.code == textCode;
}

// The whole text: all but its last part stand before it.
std::string wholeText(const Entity& entity) {
    std::string text;
    for (const Group& group : entity.groups())
        if (isPartOfText(group))
            text += group.value;
    return utf8Of(text);
}

// Breaks a line between words where it does not fit.
void addBroken(std::vector<TextLine>& lines, std::string_view text, double room) {
    std::string line;
    double width = 0;
    const double blank = textLine(" ").width;
    while (true) {
        const std::size_t end = std::min(text.find(' '), text.size());
        const std::string_view word = text.substr(0, end);
        const double wordWidth = textLine(word).width;
        if (!line.empty() && width + blank + wordWidth > room) {
            lines.push_back(textLine(line));
            line = word;
            width = wordWidth;
        } else {
            const bool isFirst = line.empty() && width == 0;
            line.append(isFirst ? "" : " ").append(word);
            width += (isFirst ? 0 : blank) + wordWidth;
        }
        if (end == text.size())
            break;
        text.remove_prefix(end + 1);
    }
    lines.push_back(textLine(line));
}

std::vector<TextLine> linesOf(const std::vector<std::string>& texts, double room) {
    std::vector<TextLine> lines;
    for (const std::string& text : texts)
        if (room > 0)
            addBroken(lines, text, room);
        else
            lines.push_back(textLine(text));
    return lines;
}

double turnOf(const Entity& entity) {
    constexpr int directionCode = 11;
    if (entity.has(directionCode))
        return angleBetween({1, 0}, entity.point(directionCode));
    return entity.number(turnCode, 0);
}

} // namespace

std::size_t lengthOfText(const Entity& entity) {
    std::size_t length = 0;
    for (const Group& group : entity.groups())
        length += isPartOfText(group) ? group.value.size() : 0;
    return length;
}

DrawnText textOf(const Entity& entity) {
    return LineOfText(entity).draw();
}

DrawnText paragraphOf(const Entity& entity) {
    constexpr int roomCode = 41;
    constexpr int stepCode = 44;
    constexpr int anchorCode = 71;
    const double size = std::fabs(entity.number(heightCode));
    const double room = entity.number(roomCode, 0) / size;
    const double step = lineStep * entity.number(stepCode, 1);
    const auto lines = linesOf(plainLines(wholeText(entity)), room);
    // From 1 at the upper left to 9 at the lower right.
    const int anchor = std::clamp(entity.integer(anchorCode, 1), 1, 9) - 1;
    const double across = anchor % 3 / 2.0;
    const double height = 1 + static_cast<double>(lines.size() - 1) * step;
    const int downwards = anchor / 3;
    double baseline = height * downwards / 2 - 1;
    const Affine map = moved(entity.point(placeCode)) * turned(turnOf(entity)) * scaled(size, size);
    DrawnText text;
    for (const TextLine& line : lines) {
        append(text.drawn.strokes, line, map * moved({-line.width * across, baseline}));
        text.unknownLetters += line.unknownLetters;
        baseline -= step;
    }
    return text;
}

} // namespace torvik::dxf
