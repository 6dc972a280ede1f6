// SPDX-License-Identifier: MIT
#include "forms/contrast.h"

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

// 0 (black) to 1 (white).
double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor between(const QColor& a, const QColor& b, double share) {
    const auto part = [share](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * share));
    };
    return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

} // namespace

double contrast(const QColor& a, const QColor& b) {
    constexpr double glare = 0.05; // what a screen shows as black
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + glare) / (dark + glare);
}

QColor readableOn(const QColor& ground) {
    return contrast(ground, Qt::white) > contrast(ground, Qt::black) ? Qt::white : Qt::black;
}

QColor withContrast(const QColor& colour, const QColor& ground, double least) {
    constexpr int steps = 64;
    const QColor end = readableOn(ground);
    QColor found = colour;
    for (int i = 1; i <= steps && contrast(found, ground) < least; ++i)
        found = between(colour, end, static_cast<double>(i) / steps);
    return found;
}

} // namespace torvik
