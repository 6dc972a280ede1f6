// SPDX-License-Identifier: MIT
// Any bytes as a drawing of another program, prepared: it is refused, or what is written is read
// back by the job's own reader to the last instruction and is not changed by reading it here. The
// first byte chooses the options. Inputs above 64 KB only repeat what smaller ones do, and the
// limits of segments and points keep one input to a fraction of a second.
#include "base/errors.h"
#include "fuzz/invariant.h"
#include "job/hpgl_reader.h"
#include "prepare/prepare.h"
#include "prepare/report.h"
#include "prepare/writing/check.h"

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

namespace torvik {
namespace {

constexpr std::size_t largestInput = std::size_t{64} << 10;

PrepareOptions optionsOf(std::uint8_t choice) {
    PrepareOptions options;
    options.arcs = (choice & 1U) == 0;
    options.optimize = (choice & 2U) != 0;
    options.dropDuplicates = (choice & 4U) != 0;
    if ((choice & 8U) != 0)
        options.dots = 0.5;
    options.mirror = (choice & 16U) != 0 ? Mirror::leftRight : Mirror::none;
    options.rotation = (choice & 32U) != 0 ? 90 : 0;
    if ((choice & 64U) != 0)
        options.origin = Point{10, 10};
    options.tolerance = (choice & 128U) != 0 ? 0.1 : 0.01;
    options.pointLimit = 20'000;
    return options;
}

void checkStrokes(const std::vector<Stroke>& strokes) {
    for (const Stroke& stroke : strokes) {
        holds(stroke.pen >= 0, "a stroke has a pen");
        for (const Segment& segment : stroke.segments)
            holds(std::isfinite(segment.end.x) && std::isfinite(segment.end.y) &&
                      std::isfinite(segment.sweep),
                  "every number of a stroke is finite");
    }
}

// Beyond this, single precision alone may use up the tolerance.
bool isNear(const StrokeExtents& extents) {
    constexpr double near = 2000; // mm
    return extents.low.x > -near && extents.low.y > -near && extents.high.x < near &&
           extents.high.y < near;
}

void prepare(const SourceDrawing& source, const PrepareOptions& options) {
    const PreparedDrawing prepared = prepareDrawing(source, options);
    holds(prepared.report.fit.largestDeviation <= options.tolerance * plotterUnitsPerMm,
          "own points keep to the tolerance");
    holds(!reportText("drawing", prepared.report).empty(), "there is a report");
    if (!isNear(prepared.report.extents))
        return;
    holds(isPlainDrawing(prepared.text), "what is written is read as it is written");
    PrepareOptions again;
    again.tolerance = options.tolerance;
    again.arcs = options.arcs;
    const auto second = prepareDrawing(readHpgl(prepared.text, "prepared"), again);
    holds(second.report.elementsAfter <= prepared.report.elementsAfter,
          "preparing again does not add elements");
}

void run(std::uint8_t choice, std::string_view bytes) {
    SourceOptions options;
    options.segmentLimit = 5'000;
    SourceDrawing source;
    try {
        source = readHpgl(bytes, "drawing", options);
    } catch (const FileError& error) {
        const std::string_view said = error.what();
        const bool isOfAll = said.find("this is no drawing") != said.npos ||
                             said.find("this text is in UTF-16") != said.npos;
        holds(isOfAll || error.line() > 0, "a refusal of one place names the line");
        return;
    }
    checkStrokes(source.strokes);
    try {
        prepare(source, optionsOf(choice));
    } catch (const Misread&) {
        const StrokeExtents extents = extentsOf(source.strokes);
        holds(!isNear(
                  {extents.low * (1 / plotterUnitsPerMm), extents.high * (1 / plotterUnitsPerMm)}),
              "what is written for a drawing of common size is read back as it was meant");
    } catch (const RunTimeError&) {
        return; // a refusal
    }
}

} // namespace
} // namespace torvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0 || size > torvik::largestInput)
        return 0;
    torvik::run(data[0], {reinterpret_cast<const char*>(data) + 1, size - 1});
    return 0;
}
