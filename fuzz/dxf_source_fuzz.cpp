// SPDX-License-Identifier: MIT
// Any bytes as a CAD drawing, read and prepared: it is refused, or what is written is read back by
// the job's own reader. The first byte chooses the options. The limits of bytes, segments and
// points keep one input to a fraction of a second.
#include "fuzz/source_invariants.h"
#include "prepare/dxf/dxf_source.h"

namespace torvik {
namespace {

void run(std::uint8_t choice, std::string_view bytes) {
    SourceOptions options;
    options.segmentLimit = 5'000;
    options.texts = (choice & 1U) == 0;
    options.byLayer = (choice & 2U) != 0;
    SourceDrawing source;
    try {
        source = readDxf(bytes, "drawing", options);
    } catch (const FileError&) {
        return;
    }
    checkStrokes(source);
    holds(std::all_of(source.leftOut.begin(), source.leftOut.end(),
                      [](const Stroke& stroke) { return isFinite(stroke.start); }),
          "what is shown only is finite, too");
    prepareAndCheck(source, optionsOf(choice));
}

} // namespace
} // namespace torvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return torvik::runWithChoice(data, size, torvik::run);
}
