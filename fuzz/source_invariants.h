// SPDX-License-Identifier: MIT
// What must hold of a picture or a CAD drawing that was read, and of what is prepared from it.
#pragma once

#include "fuzz/invariant.h"
#include "job/hpgl_reader.h"
#include "job/records.h"
#include "prepare/prepare.h"
#include "prepare/report.h"
#include "prepare/writing/check.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string_view>

namespace torvik {

// Inputs above this only repeat what smaller ones do.
constexpr std::size_t largestInput = std::size_t{64} << 10;

// The first byte of an input chooses the options, the others are the file.
inline int runWithChoice(const std::uint8_t* data, std::size_t size,
                         void (*run)(std::uint8_t choice, std::string_view bytes)) {
    if (size > 0 && size <= largestInput)
        run(data[0], {reinterpret_cast<const char*>(data) + 1, size - 1});
    return 0;
}

inline bool isFinite(Point point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

inline bool isSound(const Segment& segment) {
    return isFinite(segment.end) && isFinite(segment.first) && isFinite(segment.second) &&
           (!isArc(segment) || (segment.sweep != 0 && std::fabs(segment.sweep) <= 360));
}

// Where none is asked for, each colour and each layer takes one of the pens that a job has.
inline void checkStrokes(const SourceDrawing& source) {
    long strokes = 0;
    for (const ColourUse& use : source.report.colours)
        strokes += use.strokes;
    holds(strokes == static_cast<long>(source.strokes.size()), "every stroke has its colour");
    for (const Stroke& stroke : source.strokes) {
        holds(stroke.pen >= 1 && stroke.pen <= penCount, "a stroke has a pen of the job");
        holds(isFinite(stroke.start) &&
                  std::all_of(stroke.segments.begin(), stroke.segments.end(), isSound),
              "every number of a stroke is finite, no arc is empty or longer than a turn");
    }
}

// By the bits of `choice` from 4 on; the lower two are left to the reader.
inline PrepareOptions optionsOf(std::uint8_t choice) {
    PrepareOptions options;
    options.arcs = (choice & 4U) == 0;
    options.optimize = (choice & 8U) != 0;
    options.dropDuplicates = (choice & 16U) != 0;
    if ((choice & 32U) != 0)
        options.origin = Point{};
    options.tolerance = (choice & 64U) != 0 ? 0.1 : 0.01;
    options.pointLimit = 20'000;
    return options;
}

// Beyond this, single precision alone may use up the tolerance.
inline bool isNear(const StrokeExtents& extents, double unit) {
    constexpr double near = 2000; // mm
    return extents.low.x * unit > -near && extents.low.y * unit > -near &&
           extents.high.x * unit < near && extents.high.y * unit < near;
}

// `checkMore` is for what else must hold of what is written for a source of common size.
inline void prepareAndCheck(const SourceDrawing& source, const PrepareOptions& options,
                            void (*checkMore)(const PreparedDrawing& prepared,
                                              const PrepareOptions& options) = nullptr) {
    try {
        const PreparedDrawing prepared = prepareDrawing(source, options);
        holds(prepared.report.fit.largestDeviation <= options.tolerance * plotterUnitsPerMm,
              "own points keep to the tolerance");
        holds(!reportText("source", prepared.report).empty(), "there is a report");
        if (!isNear(prepared.report.extents, 1))
            return;
        holds(isPlainDrawing(prepared.text), "what is written is read as it is written");
        if (checkMore != nullptr)
            checkMore(prepared, options);
    } catch (const Misread&) {
        holds(!isNear(extentsOf(source.strokes), 1 / plotterUnitsPerMm),
              "what is written for a source of common size is read back as it was meant");
    } catch (const RunTimeError&) {
        return; // a refusal
    }
}

} // namespace torvik
