// SPDX-License-Identifier: MIT
#include "prepare/writing/check.h"

#include "base/logger.h"
#include "base/picture.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "prepare/arcs.h"

#include <algorithm>
#include <limits>

namespace torvik {
namespace {

constexpr std::size_t mostElements = std::numeric_limits<std::int16_t>::max();

Point inMm(Point plotterUnits) {
    return plotterUnits * (1 / plotterUnitsPerMm);
}

std::int16_t typeOf(const Segment& segment) {
    if (segment.kind == SegmentKind::line)
        return straightLine;
    return segment.sweep > 0 ? arcCounterClockwise : arcClockwise;
}

// How far an element lies from the segment it was written for, in mm; HUGE_VAL where it is
// something else.
double difference(const Path& path, int pen, Point start, const Segment& segment) {
    if (path.intPen != pen || path.intType != typeOf(segment))
        return HUGE_VAL;
    double largest = std::max(distance({path.sngStartX, path.sngStartY}, inMm(start)),
                              distance({path.sngEndX, path.sngEndY}, inMm(segment.end)));
    if (path.intType == straightLine)
        return largest;
    const Point centre{path.sngCentreX, path.sngCentreY};
    const auto at = [&](float angle) {
        return centre + rotated({path.sngRadius, 0}, degrees(angle));
    };
    const bool isForward = path.intType == arcCounterClockwise;
    largest = std::max(largest,
                       distance(at(isForward ? path.sngAngleFrom : path.sngAngleTo), inMm(start)));
    largest = std::max(
        largest, distance(at(isForward ? path.sngAngleTo : path.sngAngleFrom), inMm(segment.end)));
    return std::max(largest, distance(centre, inMm(segment.first)));
}

} // namespace

void requireFewEnough(std::span<const Stroke> strokes) {
    const std::size_t count = segmentCount(strokes);
    if (count > mostElements)
        throw RunTimeError("the prepared drawing has " + std::to_string(count) +
                           " lines, arcs and circles, but a job takes " +
                           std::to_string(mostElements) +
                           " at most; a larger tolerance leaves fewer of them");
}

void checkWritten(const std::string& text, std::span<const Stroke> strokes, double tolerance) {
    requireFewEnough(strokes);
    Job job;
    Logger logger;
    readInstructions(job.drawing, text, "the prepared drawing", logger);
    std::size_t element = 0;
    for (const Stroke& stroke : strokes) {
        Point place = stroke.start;
        for (const Segment& segment : stroke.segments) {
            const double off =
                element < static_cast<std::size_t>(job.drawing.gudtPaths.count())
                    ? difference(job.drawing.gudtPaths[static_cast<long>(element) + 1], stroke.pen,
                                 place, segment)
                    : HUGE_VAL;
            ++element;
            if (!(off <= tolerance))
                throw Misread(
                    "the prepared drawing was not written, because element " +
                    std::to_string(element) + " is read back " +
                    (off < 1e6 ? formatFixed(off, 3) + " mm beside its place" : "as another one"));
            place = segment.end;
        }
    }
    if (element != static_cast<std::size_t>(job.drawing.gudtPaths.count()))
        throw Misread("the prepared drawing was not written, because more elements are read "
                      "back than there are");
}

} // namespace torvik
