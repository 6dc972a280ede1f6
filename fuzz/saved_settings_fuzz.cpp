// SPDX-License-Identifier: MIT
// The reader of kept answers, for a drawing with a pen of lines and a pen of two circle sizes:
// any bytes are refused with a FileError or give answers whose text reads back to the same.
#include "answers/saved_text.h"
#include "base/errors.h"
#include "fuzz/invariant.h"

#include <cstdint>

namespace {

torvik::SavedAnswers fuzzedShape() {
    torvik::SavedAnswers shape;
    shape.pens.resize(2);
    shape.pens[0].number = 2;
    shape.pens[1].number = 5;
    shape.pens[1].blnCircles = true;
    shape.pens[1].holes.resize(2);
    return shape;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const torvik::SavedAnswers shape = fuzzedShape();
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    torvik::SavedAnswers answers;
    try {
        answers = torvik::parseAnswers(text, shape, "fuzzed.plx");
    } catch (const torvik::FileError&) {
        return 0;
    }
    // What was understood is written without an error, and the text holds every value.
    const std::string written = torvik::formatAnswers(answers);
    const torvik::SavedAnswers again = torvik::parseAnswers(written, shape, "written.plx");
    torvik::holds(again.digest == answers.digest, "the digest reads back");
    torvik::holds(again.header == answers.header, "the texts read back");
    torvik::holds(again.order == answers.order, "the order reads back");
    torvik::holds(torvik::formatAnswers(again) == written, "what reads back is written alike");
    return 0;
}
