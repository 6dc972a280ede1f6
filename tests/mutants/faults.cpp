// SPDX-License-Identifier: MIT
#include "tests/mutants/faults.h"

#include "base/numbers.h"
#include "base/picture.h"

#include <algorithm>

namespace torvik {
namespace {

using Pick = std::function<bool(const Lines&, std::size_t)>;
using Edit = std::function<std::string(const std::string&, Random&)>;

std::size_t below(std::size_t limit, Random& random) {
    return static_cast<std::size_t>(random()) % limit;
}

Pick starting(const char* start) {
    return [=](const Lines& lines, std::size_t i) { return lines[i].starts_with(start); };
}

Pick holding(const char* word) {
    return
        [=](const Lines& lines, std::size_t i) { return lines[i].find(word) != std::string::npos; };
}

bool isCut(const Lines& lines, std::size_t i) {
    return lines[i].starts_with("G1 X") || lines[i].starts_with("G2") || lines[i].starts_with("G3");
}
bool isArc(const Lines& lines, std::size_t i) {
    return isCut(lines, i) && !lines[i].starts_with("G1");
}
bool isDown(const Lines& lines, std::size_t i) {
    return lines[i].starts_with("G1 Z");
}
bool isRapidDown(const Lines& lines, std::size_t i) {
    return i + 1 < lines.size() && lines[i].starts_with("G0 Z") && isDown(lines, i + 1);
}
bool isRapidUp(const Lines& lines, std::size_t i) {
    return i + 1 < lines.size() && lines[i].starts_with("G0 Z") && lines[i + 1].starts_with("G0 X");
}
bool isPeck(const Lines& lines, std::size_t i) {
    return i > 0 && isDown(lines, i) && !isCut(lines, i + 1) && isDown(lines, i - 1);
}
bool isSpeed(const Lines& lines, std::size_t i) {
    return lines[i].starts_with("S") || lines[i].starts_with("M3 S");
}
bool isFed(const Lines& lines, std::size_t i) {
    return isCut(lines, i) || isDown(lines, i);
}

// A line that is picked, the program's size where there is none.
std::size_t chosen(const Lines& lines, Random& random, const Pick& pick) {
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (pick(lines, i))
            found.push_back(i);
    return found.empty() ? lines.size() : found[below(found.size(), random)];
}

auto place(Lines& lines, std::size_t i) {
    return lines.begin() + static_cast<std::ptrdiff_t>(i);
}

Fault edited(const char* name, const Pick& pick, const Edit& edit) {
    return {name, [=](Lines& lines, Random& random) {
                const std::size_t i = chosen(lines, random, pick);
                if (i == lines.size())
                    return false;
                const std::string before = lines[i];
                lines[i] = edit(before, random);
                if (lines[i].empty())
                    lines.erase(place(lines, i));
                return i >= lines.size() || lines[i] != before;
            }};
}

Fault lost(const char* name, const Pick& pick) {
    return edited(name, pick, [](const std::string&, Random&) { return ""; });
}

Fault doubled(const char* name, const Pick& pick) {
    return {name, [=](Lines& lines, Random& random) {
                const std::size_t i = chosen(lines, random, pick);
                if (i < lines.size())
                    lines.insert(place(lines, i), std::string(lines[i]));
                return i < lines.size();
            }};
}

Fault exchanged(const char* name, const Pick& pick) {
    return {name, [=](Lines& lines, Random& random) {
                const std::size_t i = chosen(lines, random, [&](const Lines& all, std::size_t k) {
                    return k + 1 < all.size() && pick(all, k) && pick(all, k + 1) &&
                           all[k] != all[k + 1];
                });
                if (i < lines.size())
                    std::swap(lines[i], lines[i + 1]);
                return i < lines.size();
            }};
}

// The lines from one that is picked to before the next one, left out or brought twice.
Fault stretch(const char* name, const Pick& pick, bool isLost) {
    return {name, [=](Lines& lines, Random& random) {
                const std::size_t i = chosen(lines, random, pick);
                std::size_t end = i + 1;
                while (end < lines.size() && !pick(lines, end))
                    ++end;
                if (end >= lines.size())
                    return false;
                const Lines part(place(lines, i), place(lines, end));
                if (isLost)
                    lines.erase(place(lines, i), place(lines, end));
                else
                    lines.insert(place(lines, i), part.begin(), part.end());
                return true;
            }};
}

Edit replaced(const char* text, const char* with) {
    return [=](const std::string& line, Random&) {
        const auto at = line.find(text);
        return at == line.npos
                   ? line
                   : line.substr(0, at) + with + line.substr(at + std::string(text).size());
    };
}

// The number behind the letter, which must not be the line's first.
struct Number {
    std::size_t at;
    std::size_t size;
};
Number numberOf(const std::string& line, char letter) {
    const auto at = line.find(std::string(" ") + letter);
    if (at == line.npos)
        return {line.size(), 0};
    return {at + 2, std::min(line.find(' ', at + 2), line.size()) - at - 2};
}

std::string withNumber(const std::string& line, Number number, const std::string& text) {
    return line.substr(0, number.at) + text + line.substr(number.at + number.size);
}

Edit changed(char letter, const std::function<double(double)>& change) {
    return [=](const std::string& line, Random&) {
        const Number number = numberOf(line, letter);
        const std::string text = line.substr(number.at, number.size);
        const auto point = text.find('.');
        const int decimals = point == text.npos ? 0 : static_cast<int>(text.size() - point - 1);
        return number.size == 0
                   ? line
                   : withNumber(line, number, formatFixed(change(leadingNumber(text)), decimals));
    };
}

Edit multiplied(char letter, double factor) {
    return changed(letter, [=](double value) { return value * factor; });
}
Edit moved(char letter, double by) {
    return changed(letter, [=](double value) { return value + by; });
}

// Another digit at one place.
Edit mistyped(char letter) {
    return [=](const std::string& line, Random& random) {
        const Number number = numberOf(line, letter);
        if (number.size == 0)
            return line;
        std::string text = line.substr(number.at, number.size);
        char& digit = text[below(text.size(), random)];
        if (digit >= '0' && digit <= '9')
            digit = static_cast<char>('0' +
                                      (digit - '0' + 1 + static_cast<int>(below(9, random))) % 10);
        return withNumber(line, number, text);
    };
}

Edit swappedNumbers(char first, char second) {
    return [=](const std::string& line, Random&) {
        const Number a = numberOf(line, first);
        const Number b = numberOf(line, second);
        if (a.size == 0 || b.size == 0)
            return line;
        const std::string text = line.substr(a.at, a.size);
        return withNumber(withNumber(line, b, text), a, line.substr(b.at, b.size));
    };
}

std::string turnedRound(const std::string& line, Random& /*random*/) {
    return (line.starts_with("G2") ? "G3" : "G2") + line.substr(2);
}

std::string otherTool(const std::string& line, Random& /*random*/) {
    std::string text = line;
    for (char& c : text)
        if (c >= '1' && c <= '3' && &c != text.data() && (*(&c - 1) == 'T' || *(&c - 1) == 'H'))
            c = c == '3' ? '1' : static_cast<char>(c + 1);
    return text;
}

const std::vector<Fault>& table() {
    static const std::vector<Fault> rows{
        lost("lost cut", isCut),
        lost("lost arc", isArc),
        lost("lost plunge", isDown),
        lost("lost peck", isPeck),
        lost("lost retract", isRapidUp),
        lost("lost quick way down", isRapidDown),
        lost("lost rapid across", starting("G0 X")),
        lost("lost dwell", starting("G4")),
        lost("lost tool", starting("T")),
        lost("lost spindle", isSpeed),
        lost(
            "lost stop before a tool",
            [](const Lines& lines, std::size_t i) { return lines[i] == "M0" || lines[i] == "M1"; }),
        edited("lost spindle stop", holding(" M5"), replaced(" M5", "")),
        lost("lost opening line", starting("G5")),
        lost("lost end", [](const Lines& lines, std::size_t i) { return i + 1 == lines.size(); }),
        edited("lost feed", isFed,
               [](const std::string& line, Random&) { return line.substr(0, line.find(" F")); }),
        stretch("lost pass", isDown, true),
        stretch("lost element", starting("G0 X"), true),
        doubled("doubled cut", isCut),
        doubled("doubled dwell", starting("G4")),
        stretch("doubled pass", isDown, false),
        stretch("doubled element", starting("G0 X"), false),
        exchanged("exchanged lines", [](const Lines&, std::size_t) { return true; }),
        exchanged("exchanged cuts", isCut),
        edited("wrong digit in X", holding(" X"), mistyped('X')),
        edited("wrong digit in Y", holding(" Y"), mistyped('Y')),
        edited("wrong digit in Z", holding(" Z"), mistyped('Z')),
        edited("wrong digit in F", isFed, mistyped('F')),
        edited("wrong digit in S", isSpeed,
               [](const std::string& line, Random& random) {
                   return mistyped('S')(" " + line, random).substr(1);
               }),
        edited("place 0.002 mm off", isCut, moved('Y', 0.002)),
        edited("sign of X", holding(" X"), multiplied('X', -1)),
        edited("sign of Z", isDown, multiplied('Z', -1)),
        edited("depth x 10", isDown, multiplied('Z', 10)),
        edited("depth 0.1 mm off", isDown, moved('Z', 0.1)),
        edited("height / 10", starting("G0 Z"), multiplied('Z', 0.1)),
        edited("feed x 10", isFed, multiplied('F', 10)),
        edited("feed / 10", isFed, multiplied('F', 0.1)),
        edited("dwell x 10", starting("G4"),
               [](const std::string& line, Random& random) {
                   return multiplied(line[3], 10)(line, random);
               }),
        edited("X and Y exchanged", holding(" Y"), swappedNumbers('X', 'Y')),
        edited("I and J exchanged", isArc, swappedNumbers('I', 'J')),
        edited("sign of I", isArc, multiplied('I', -1)),
        edited("wrong digit in J", isArc, mistyped('J')),
        edited("G2 and G3 exchanged", isArc, turnedRound),
        edited("cut at full speed", isCut,
               [](const std::string& line, Random&) {
                   return "G0" + line.substr(2, line.find_first_of("IF") - 3);
               }),
        edited("wrong tool", starting("T"), otherTool),
        edited("wrong H or D", starting("T"),
               [](const std::string& line, Random& random) {
                   return moved('D', 1)(moved('H', 1)(line, random), random);
               }),
    };
    return rows;
}

} // namespace

std::span<const Fault> faults() {
    return table();
}

} // namespace torvik
