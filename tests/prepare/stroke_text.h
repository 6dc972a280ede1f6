// SPDX-License-Identifier: MIT
// Strokes as short texts, so that cases can be read: the pen, the start, then L for a line, A for
// an arc (its centre and sweep), B for a curve; O for a circle, a lone start for a dot.
#pragma once

#include "base/picture.h"
#include "prepare/strokes.h"

#include <exception>
#include <span>
#include <string>

namespace torvik {

inline std::string shortNumber(double value) {
    std::string text = formatFixed(value, 3);
    while (text.back() == '0')
        text.pop_back();
    if (text.back() == '.')
        text.pop_back();
    return text;
}

inline std::string pointText(Point p) {
    return shortNumber(p.x) + "," + shortNumber(p.y);
}

// What is said where the work is refused; nothing where it is done.
template <typename Work>
std::string refusal(const Work& work) {
    try {
        work();
    } catch (const std::exception& error) {
        return error.what();
    }
    return "";
}

inline std::string strokesText(std::span<const Stroke> strokes) {
    std::string text;
    for (const Stroke& stroke : strokes) {
        text += (text.empty() ? "" : "; ") + std::to_string(stroke.pen) + ": ";
        if (stroke.isCircle()) {
            const Point centre = stroke.segments[0].first;
            text += "O" + pointText(centre) + " r" + shortNumber(distance(centre, stroke.start));
            continue;
        }
        text += pointText(stroke.start);
        for (const Segment& segment : stroke.segments) {
            if (isArc(segment))
                text += " A" + pointText(segment.first) + " " + shortNumber(segment.sweep) + ">";
            else if (isLine(segment))
                text += " L";
            else
                text += " B" + pointText(segment.first) + " " + pointText(segment.second) + ">";
            text += pointText(segment.end);
        }
    }
    return text;
}

} // namespace torvik
