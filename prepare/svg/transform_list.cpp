// SPDX-License-Identifier: MIT
#include "prepare/svg/transform_list.h"

#include "prepare/arcs.h"
#include "prepare/svg/text_reader.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace torvik::svg {
namespace {

using Numbers = std::vector<double>;

double numberAt(const Numbers& numbers, std::size_t place) {
    return place < numbers.size() ? numbers[place] : 0;
}

Affine matrix(const Numbers& n) {
    return {{n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]}};
}

Affine translate(const Numbers& n) {
    return moved({n[0], numberAt(n, 1)});
}

Affine scale(const Numbers& n) {
    return scaled(n[0], n.size() > 1 ? n[1] : n[0]);
}

Affine rotate(const Numbers& n) {
    const Point centre{numberAt(n, 1), numberAt(n, 2)};
    return moved(centre) * turned(n[0]) * moved(centre * -1);
}

Affine skewX(const Numbers& n) {
    return {{1, 0}, {std::tan(radians(n[0])), 1}, {}};
}

Affine skewY(const Numbers& n) {
    return {{1, std::tan(radians(n[0]))}, {0, 1}, {}};
}

Affine translateX(const Numbers& n) {
    return moved({n[0], 0});
}

Affine translateY(const Numbers& n) {
    return moved({0, n[0]});
}

Affine scaleX(const Numbers& n) {
    return scaled(n[0], 1);
}

Affine scaleY(const Numbers& n) {
    return scaled(1, n[0]);
}

struct Kind {
    std::string_view name;
    std::size_t fewest; // numbers
    std::size_t most;   // no count between
    Affine (*make)(const Numbers&);
};

constexpr std::array<Kind, 10> kinds{{{"matrix", 6, 6, matrix},
                                      {"translate", 1, 2, translate},
                                      {"scale", 1, 2, scale},
                                      {"rotate", 1, 3, rotate},
                                      {"skewx", 1, 1, skewX},
                                      {"skewy", 1, 1, skewY},
                                      {"translatex", 1, 1, translateX},
                                      {"translatey", 1, 1, translateY},
                                      {"scalex", 1, 1, scaleX},
                                      {"scaley", 1, 1, scaleY}}};

double angleFactor(std::string_view unit) {
    if (isWord(unit, "rad"))
        return degrees(1);
    if (isWord(unit, "turn"))
        return fullTurn;
    return isWord(unit, "grad") ? 0.9 : 1;
}

std::optional<Numbers> takeNumbers(TextReader& reader) {
    Numbers numbers;
    reader.skipBlanks();
    while (!reader.take(')')) {
        const auto number = reader.takeNumber();
        if (!number)
            return {};
        numbers.push_back(*number * angleFactor(reader.takeLetters()));
        reader.skipSeparator();
    }
    return numbers;
}

} // namespace

std::optional<Affine> transformOf(std::string_view text) {
    TextReader reader(trimmed(text));
    Affine map;
    if (isWord(reader.rest(), "none"))
        return map;
    while (!reader.atEnd()) {
        const std::string_view name = reader.takeName();
        reader.skipBlanks();
        if (!reader.take('('))
            return {};
        const auto numbers = takeNumbers(reader);
        const Kind* kind = nullptr;
        for (const Kind& one : kinds)
            if (isWord(name, one.name))
                kind = &one;
        if (!numbers || kind == nullptr ||
            (numbers->size() != kind->fewest && numbers->size() != kind->most))
            return {};
        map = map * kind->make(*numbers);
        reader.skipSeparator();
    }
    return map;
}

} // namespace torvik::svg
