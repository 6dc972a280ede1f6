// SPDX-License-Identifier: MIT
#include "prepare/text/letters.h"

#include <array>
#include <map>
#include <string_view>

namespace torvik {
namespace {

using Line = std::vector<Point>;
using Lines = std::vector<Line>;

constexpr double lowerTop = 14; // of small letters without a stem
constexpr double overLower = lowerTop + 3;
constexpr double overCapital = fontCapHeight + 2;

const Glyph& ascii(char letter) {
    return hersheyFont()[static_cast<std::size_t>(letter - ' ')];
}

Line dotAt(double x, double y) {
    return {{x - 1, y}, {x, y + 1}, {x + 1, y}, {x, y - 1}, {x - 1, y}};
}

// Eight corners that turn gently: the smoothing makes a circle of them.
Line ringAt(double x, double y, double r) {
    const double d = r * 0.7071;
    return {{x, y + r},     {x - d, y + d}, {x - r, y},     {x - d, y - d}, {x, y - r},
            {x + d, y - d}, {x + r, y},     {x + d, y + d}, {x, y + r}};
}

// Marks over a letter, about X 0 and from Y 0 upwards.
Lines markOf(char mark) {
    switch (mark) {
    case '"':
        return {dotAt(-4, 1), dotAt(4, 1)};
    case '\'':
        return {{{-2, 0}, {2, 4}}};
    case '`':
        return {{{2, 0}, {-2, 4}}};
    case '^':
        return {{{-4, 0}, {0, 4}, {4, 0}}};
    case 'v':
        return {{{-4, 4}, {0, 0}, {4, 4}}};
    case '~':
        return {{{-5, 0}, {-4, 2}, {-2, 3}, {2, 1}, {4, 2}, {5, 4}}};
    case 'o':
        return {ringAt(0, 2.5, 2.5)};
    case ',': // below the baseline
        return {{{0, 0}, {-1, -2}, {1, -3}, {1, -5}, {-1, -6}, {-3, -5}}};
    default:
        return {};
    }
}

void add(Glyph& glyph, const Lines& lines, Point by = {}) {
    for (Line line : lines) {
        for (Point& point : line)
            point = point + by;
        glyph.lines.push_back(std::move(line));
    }
}

double middleOf(const Glyph& glyph) {
    return (glyph.left + glyph.right) / 2;
}

Glyph withMark(char letter, char mark) {
    Glyph glyph = ascii(letter);
    const bool isLower = letter >= 'a';
    if (letter == 'i' && mark != ',') // its own dot goes; the stem is the lower line
        std::erase_if(glyph.lines, [](const Line& line) { return line.front().y > lowerTop; });
    const double y = mark == ',' ? 0 : isLower ? overLower : overCapital;
    add(glyph, markOf(mark), {middleOf(glyph), y});
    return glyph;
}

Glyph struckThrough(char letter) {
    Glyph glyph = ascii(letter);
    const double top = letter >= 'a' ? lowerTop : fontCapHeight;
    glyph.lines.push_back({{glyph.left + 3, -1}, {glyph.right - 3, top + 1}});
    return glyph;
}

Glyph scaledDown(const Glyph& whole, double factor, double up) {
    Glyph glyph{{}, whole.left * factor, whole.right * factor};
    for (const Line& line : whole.lines) {
        Line& small = glyph.lines.emplace_back();
        for (const Point& point : line)
            small.push_back(point * factor + Point{0, up});
    }
    return glyph;
}

Glyph moved(const Glyph& whole, double up) {
    return scaledDown(whole, 1, up);
}

Glyph twice(const Glyph& once) {
    constexpr double apart = 5;
    Glyph glyph{{}, once.left - apart / 2, once.right + apart / 2};
    add(glyph, once.lines, {-apart / 2, 0});
    add(glyph, once.lines, {apart / 2, 0});
    return glyph;
}

struct Composed {
    char32_t letter;
    char base;
    char mark;
};

// Latin letters with marks.
constexpr std::array<Composed, 60> composed{{
    {U'À', 'A', '`'},  {U'Á', 'A', '\''}, {U'Â', 'A', '^'},  {U'Ã', 'A', '~'},  {U'Ä', 'A', '"'},
    {U'Å', 'A', 'o'},  {U'Ç', 'C', ','},  {U'È', 'E', '`'},  {U'É', 'E', '\''}, {U'Ê', 'E', '^'},
    {U'Ë', 'E', '"'},  {U'Ì', 'I', '`'},  {U'Í', 'I', '\''}, {U'Î', 'I', '^'},  {U'Ï', 'I', '"'},
    {U'Ñ', 'N', '~'},  {U'Ò', 'O', '`'},  {U'Ó', 'O', '\''}, {U'Ô', 'O', '^'},  {U'Õ', 'O', '~'},
    {U'Ö', 'O', '"'},  {U'Ù', 'U', '`'},  {U'Ú', 'U', '\''}, {U'Û', 'U', '^'},  {U'Ü', 'U', '"'},
    {U'Ý', 'Y', '\''}, {U'à', 'a', '`'},  {U'á', 'a', '\''}, {U'â', 'a', '^'},  {U'ã', 'a', '~'},
    {U'ä', 'a', '"'},  {U'å', 'a', 'o'},  {U'ç', 'c', ','},  {U'è', 'e', '`'},  {U'é', 'e', '\''},
    {U'ê', 'e', '^'},  {U'ë', 'e', '"'},  {U'ì', 'i', '`'},  {U'í', 'i', '\''}, {U'î', 'i', '^'},
    {U'ï', 'i', '"'},  {U'ñ', 'n', '~'},  {U'ò', 'o', '`'},  {U'ó', 'o', '\''}, {U'ô', 'o', '^'},
    {U'õ', 'o', '~'},  {U'ö', 'o', '"'},  {U'ù', 'u', '`'},  {U'ú', 'u', '\''}, {U'û', 'u', '^'},
    {U'ü', 'u', '"'},  {U'ý', 'y', '\''}, {U'ÿ', 'y', '"'},  {U'Š', 'S', 'v'},  {U'š', 's', 'v'},
    {U'Ş', 'S', ','},  {U'ş', 's', ','},  {U'Ÿ', 'Y', '"'},  {U'Ž', 'Z', 'v'},  {U'ž', 'z', 'v'},
}};

Glyph sharpS() {
    return {{{{-6, 0},
              {-6, 16},
              {-5, 19},
              {-3, 21},
              {0, 21},
              {3, 20},
              {4, 18},
              {4, 15},
              {3, 13},
              {0, 12}},
             {{0, 12}, {3, 11}, {5, 9}, {6, 6}, {6, 4}, {5, 2}, {3, 0}, {0, 0}, {-2, 1}}},
            -10,
            10};
}

Glyph euro() {
    return {{{{8, 17},
              {6, 20},
              {3, 21},
              {0, 21},
              {-3, 20},
              {-5, 18},
              {-6, 16},
              {-7, 12},
              {-7, 9},
              {-6, 5},
              {-5, 3},
              {-3, 1},
              {0, 0},
              {3, 0},
              {6, 1},
              {8, 4}},
             {{-10, 13}, {4, 13}},
             {{-10, 8}, {3, 8}}},
            -12,
            11};
}

Glyph micro() {
    Glyph glyph = ascii('u');
    glyph.lines.push_back({{glyph.left + 4, lowerTop}, {glyph.left + 4, -7}});
    return glyph;
}

std::map<char32_t, Glyph> makeLetters() {
    std::map<char32_t, Glyph> letters;
    for (char32_t letter = U' '; letter <= U'~'; ++letter)
        letters[letter] = ascii(static_cast<char>(letter));
    for (const Composed& one : composed)
        letters[one.letter] = withMark(one.base, one.mark);
    constexpr double smallFigure = 0.55;
    constexpr double raised = 10;
    letters[U'^'] = {{{{-5, 14}, {0, fontCapHeight}, {5, 14}}}, -9, 9};
    letters[U'ß'] = sharpS();
    letters[U'€'] = euro();
    letters[U'µ'] = letters[U'μ'] = micro();
    letters[U'ø'] = struckThrough('o');
    letters[U'Ø'] = letters[U'⌀'] = struckThrough('O');
    letters[U'°'] = {{ringAt(0, 18, 3)}, -6, 6};
    letters[U'²'] = scaledDown(ascii('2'), smallFigure, raised);
    letters[U'³'] = scaledDown(ascii('3'), smallFigure, raised);
    letters[U'±'] = moved(ascii('+'), 2);
    letters[U'±'].lines.push_back({{-9, 0}, {9, 0}});
    letters[U'×'] = {{{{-7, 2}, {7, 16}}, {{-7, 16}, {7, 2}}}, -11, 11};
    letters[U'·'] = {{dotAt(0, 9)}, -5, 5};
    letters[U'–'] = letters[U'−'] = ascii('-');
    letters[U'—'] = {{{{-13, 9}, {13, 9}}}, -15, 15};
    letters[U'’'] = letters[U'‘'] = letters[U'´'] = ascii('\'');
    letters[U'„'] = twice(ascii(','));
    letters[U'“'] = letters[U'”'] = twice(ascii('\''));
    letters[U'\u00a0'] = ascii(' ');
    return letters;
}

} // namespace

const Glyph* findLetter(char32_t letter) {
    static const std::map<char32_t, Glyph> letters = makeLetters();
    const auto found = letters.find(letter);
    return found == letters.end() ? nullptr : &found->second;
}

const Glyph& emptyBox() {
    static const Glyph box{
        {{{-6, 0}, {-6, fontCapHeight}, {6, fontCapHeight}, {6, 0}, {-6, 0}}}, -9, 9};
    return box;
}

} // namespace torvik
