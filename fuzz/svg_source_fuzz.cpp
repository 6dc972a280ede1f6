// SPDX-License-Identifier: MIT
// Any bytes as an SVG picture, read and prepared: it is refused, or every shape is drawn or counted
// and what is written is read back by the job's own reader. The first byte chooses the options.
// The limits of bytes, segments and points keep one input to a fraction of a second.
#include "fuzz/source_invariants.h"
#include "prepare/svg/svg_source.h"

namespace torvik {
namespace {

void run(std::uint8_t choice, std::string_view bytes) {
    SourceOptions options;
    options.segmentLimit = 5'000;
    options.texts = (choice & 1U) == 0;
    if ((choice & 2U) != 0)
        options.dpi = 90;
    SourceDrawing source;
    try {
        source = readSvg(bytes, "picture", options);
    } catch (const FileError& error) {
        holds(std::string_view(error.what()).find("a fault of Torvik") == std::string_view::npos,
              "every shape is drawn or counted");
        return;
    }
    checkStrokes(source);
    prepareAndCheck(source, optionsOf(choice));
}

} // namespace
} // namespace torvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return torvik::runWithChoice(data, size, torvik::run);
}
