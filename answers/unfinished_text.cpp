// SPDX-License-Identifier: MIT
#include "answers/unfinished_text.h"

#include "answers/saved_reader.h"
#include "answers/saved_writer.h"

namespace torvik {
namespace {

constexpr std::int16_t mostBoxes = 100; // of a page

// The lines before the answers. File is the reader or the writer.
template <typename File>
void layOutPlace(File& file, UnfinishedText& unfinished) {
    WizardPlace& place = unfinished.place;
    auto boxes = static_cast<std::int16_t>(unfinished.boxes.size());
    file.whole("the step", place.step);
    file.whole("the pen on show", place.pen);
    file.whole("the hole size on show", place.radius);
    file.whole("the count of boxes", boxes);
    file.endLine();
    file.require(place.step >= 2 && place.step <= 6, "there is no such step");
    file.require(place.pen >= 0 && place.pen <= penCount && place.radius >= 0,
                 "there is no such pen or hole size");
    file.require(boxes >= 0 && boxes <= mostBoxes, "no page has so many boxes");
    unfinished.boxes.resize(static_cast<std::size_t>(boxes));
    for (std::string& box : unfinished.boxes) {
        file.text("the text of a box", box);
        file.endLine();
    }
}

} // namespace

UnfinishedText parseUnfinished(std::string_view text, std::string_view fileName) {
    UnfinishedText unfinished;
    SavedReader reader(text, fileName);
    layOutPlace(reader, unfinished);
    unfinished.answers = reader.rest();
    return unfinished;
}

std::string formatUnfinished(UnfinishedText unfinished) {
    SavedWriter writer;
    layOutPlace(writer, unfinished);
    return writer.take() + unfinished.answers;
}

} // namespace torvik
