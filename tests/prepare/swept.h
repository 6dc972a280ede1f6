// SPDX-License-Identifier: MIT
// The area that the tool sweeps on its way, for the properties of the tool beside the line.
#pragma once

#include "prepare/arcs.h"
#include "prepare/beside/area.h"

#include <span>
#include <vector>

namespace torvik {

// Arcs of the way are fine chords here.
inline Area swept(std::span<const Stroke> strokes, double radius) {
    std::vector<Stroke> chords;
    for (const Stroke& stroke : strokes) {
        Stroke& line = chords.emplace_back(Stroke{1, stroke.start, {}});
        Point start = stroke.start;
        for (const Segment& segment : stroke.segments) {
            for (int i = 1; i < 64 && isArc(segment); ++i)
                line.segments.push_back(lineSegment(pointOnArc(start, segment, i / 64.0)));
            line.segments.push_back(lineSegment(segment.end));
            start = segment.end;
        }
    }
    return Area::sweptAlong(chords, radius, 0.02);
}

} // namespace torvik
