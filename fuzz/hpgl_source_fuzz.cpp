// SPDX-License-Identifier: MIT
// Any bytes as a drawing of another program, prepared: it is refused, or what is written is read
// back by the job's own reader to the last instruction and is not changed by reading it here. The
// first byte chooses the options. Inputs above 64 KB only repeat what smaller ones do, and the
// limits of segments and points keep one input to a fraction of a second.
#include "base/errors.h"
#include "fuzz/source_invariants.h"

#include <cmath>
#include <cstdint>
#include <string_view>

namespace torvik {
namespace {

PrepareOptions plotOptionsOf(std::uint8_t choice) {
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
            holds(isFinite(segment.end) && std::isfinite(segment.sweep),
                  "every number of a stroke is finite");
    }
}

void prepareAgain(const PreparedDrawing& prepared, const PrepareOptions& options) {
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
    prepareAndCheck(source, plotOptionsOf(choice), prepareAgain);
}

} // namespace
} // namespace torvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return torvik::runWithChoice(data, size, torvik::run);
}
