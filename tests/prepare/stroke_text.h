// SPDX-License-Identifier: MIT
// Strokes as short texts, so that cases can be read: the pen, the start, then L for a line, A for
// an arc (its centre and sweep), B for a curve; O for a circle, a lone start for a dot.
#pragma once

#include "base/picture.h"
#include "prepare/strokes.h"

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

inline std::string strokeText(const Stroke& stroke) {
    std::string text = std::to_string(stroke.pen) + ":";
    if (stroke.isCircle()) {
        const Point centre = stroke.segments[0].first;
        return text + " O" + pointText(centre) + " r" + shortNumber(distance(centre, stroke.start));
    }
    text += " " + pointText(stroke.start);
    for (const Segment& segment : stroke.segments) {
        if (segment.kind == SegmentKind::arc)
            text += " A" + pointText(segment.first) + " " + shortNumber(segment.sweep) + ">";
        else if (segment.kind == SegmentKind::curve)
            text += " B" + pointText(segment.first) + " " + pointText(segment.second) + ">";
        else
            text += " L";
        text += pointText(segment.end);
    }
    return text;
}

inline std::string strokesText(std::span<const Stroke> strokes) {
    std::string text;
    for (const Stroke& stroke : strokes)
        text += (text.empty() ? "" : "; ") + strokeText(stroke);
    return text;
}

} // namespace torvik
