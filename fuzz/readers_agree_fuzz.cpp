// SPDX-License-Identifier: MIT
// Made-up drawings through both readers, that of the job and that of a plotter's whole language:
// either they find the same lines, or the job's reader has counted that something is lost.
#include "base/errors.h"
#include "base/logger.h"
#include "fuzz/invariant.h"
#include "job/extents.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "prepare/source/hpgl_source.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>
#include <string_view>

namespace torvik {
namespace {

constexpr double turn = 2 * std::numbers::pi;

// Each byte adds a piece, so that most inputs are nearly drawings.
std::string drawingOf(const std::uint8_t* data, std::size_t size) {
    static constexpr std::array<std::string_view, 48> pieces{
        "PU",          "PD",         "AA",      "CI",         "SP",
        "IN",          "PA",         "PR",      ";",          ";",
        ";\n",         ",",          ",",       ",",          " ",
        "\r\n",        "0",          "1",       "2",          "-90",
        "90",          "180",        "360",     "400",        "800",
        "1200",        "2000",       "-400",    "4.5",        "PU400,400;",
        "PD800,400;",  "PD800,800;", "PU0,0;",  "CI200;",     "AA400,400,90;",
        "AA0,0,-180;", "SP1;",       "SP2;",    "SP3;",       "PU;",
        "PD;",         "VS5;",       "LB",      "SC0,1,0,1;", "RO90;",
        "EA",          "pd",         "\x1B%-1B"};
    std::string text = "SP1;";
    for (std::size_t i = 0; i < size; ++i)
        text += pieces[data[i] % pieces.size()];
    return text;
}

// What both readers must agree on for one pen; mm.
struct Measure {
    double lines = 0;
    double arcs = 0;
    double weight = 0; // of places, so that lines of one length at two places differ
};

using Measures = std::array<Measure, penCount + 1>;

void addLine(Measure& measure, double x1, double y1, double x2, double y2) {
    const double length = std::hypot(x2 - x1, y2 - y1);
    measure.lines += length;
    measure.weight += length * (x1 + x2 + 3 * (y1 + y2));
}

void addArc(Measure& measure, double x, double y, double radius, double sweep) {
    measure.arcs += radius * sweep;
    measure.weight += radius * sweep * (x + 3 * y);
}

Measures measuresOf(const Drawing& drawing) {
    Measures measures;
    for (const Path& path : drawing.gudtPaths) {
        Measure& measure = measures[static_cast<std::size_t>(path.intPen)];
        if (path.intType == straightLine) {
            addLine(measure, path.sngStartX, path.sngStartY, path.sngEndX, path.sngEndY);
            continue;
        }
        double sweep = double{path.sngAngleTo} - path.sngAngleFrom;
        if (sweep < 0)
            sweep += turn;
        addArc(measure, path.sngCentreX, path.sngCentreY, path.sngRadius,
               isFullTurn(path) ? turn : sweep);
    }
    return measures;
}

Measures measuresOf(const SourceDrawing& source) {
    Measures measures;
    constexpr double unit = 1 / plotterUnitsPerMm;
    for (const Stroke& stroke : source.strokes) {
        if (stroke.pen < 1 || stroke.pen > penCount)
            continue;
        Measure& measure = measures[static_cast<std::size_t>(stroke.pen)];
        Point from = stroke.start;
        for (const Segment& segment : stroke.segments) {
            const Point& to = segment.end;
            if (segment.kind == SegmentKind::line)
                addLine(measure, from.x * unit, from.y * unit, to.x * unit, to.y * unit);
            else
                addArc(measure, segment.first.x * unit, segment.first.y * unit,
                       distance(from, segment.first) * unit, std::fabs(segment.sweep) * turn / 360);
            from = to;
        }
    }
    return measures;
}

// Near the X axis the job's reader bends an arc by up to 0.0015 of its radius.
bool isClose(double a, double b) {
    return std::fabs(a - b) <= 0.05 + 0.005 * (std::fabs(a) + std::fabs(b));
}

void run(const std::string& text) {
    Job job;
    Logger logger;
    SourceDrawing source;
    try {
        readInstructions(job.drawing, text, "drawing", logger);
        source = readHpgl(text, "drawing");
    } catch (const RunTimeError&) {
        return;
    }
    if (job.drawing.reading.lost > 0)
        return;
    const Measures own = measuresOf(job.drawing);
    const Measures whole = measuresOf(source);
    for (std::size_t pen = 1; pen < own.size(); ++pen)
        holds(isClose(own[pen].lines, whole[pen].lines) &&
                  isClose(own[pen].arcs, whole[pen].arcs) &&
                  std::fabs(own[pen].weight - whole[pen].weight) <=
                      0.05 + 0.005 * (own[pen].lines + own[pen].arcs) * 4000,
              "the readers agree where nothing is lost");
}

} // namespace
} // namespace torvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size <= 400)
        torvik::run(torvik::drawingOf(data, size));
    return 0;
}
