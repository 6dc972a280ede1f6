// SPDX-License-Identifier: MIT
#include "answers/saved_text.h"

#include "answers/saved_reader.h"
#include "answers/saved_writer.h"

namespace torvik {
namespace {

constexpr std::array<std::string_view, 9> headerNames{
    "the date",     "the designer",   "the teacher",    "the teaching group", "the name of part",
    "the material", "the billet's X", "the billet's Y", "the billet's Z"};

// The layout of the file. File is the reader or the writer; the latter takes the answers as const.
template <typename File, typename Group>
void layOutHole(File& file, Group& hole) {
    file.whole("the tool number", hole.toolNumber);
    file.number("the spindle speed", hole.settings.sngSpindleSpeed);
    file.number("the drilling feed rate", hole.settings.sngFeedVertical);
    file.number("the depth of hole", hole.settings.sngDepth);
    file.number("the peck distance", hole.settings.sngDepthPerPass);
    file.number("the dwell time", hole.settings.sngDwell);
    file.flag("the peck flag", hole.settings.blnPeck);
    file.endLine();
}

template <typename File, typename Pen>
void layOutPen(File& file, Pen& pen) {
    auto& settings = pen.own.settings;
    file.wholeOfDrawing("the pen number", static_cast<std::size_t>(pen.number));
    file.endLine();
    file.whole("the tool number", pen.own.toolNumber);
    file.number("the spindle speed", settings.sngSpindleSpeed);
    file.number("the horizontal feed rate", settings.sngFeedHorizontal);
    file.number("the vertical feed rate", settings.sngFeedVertical);
    file.number("the final depth", settings.sngDepth);
    file.number("the maximum depth per pass", settings.sngDepthPerPass);
    file.flag("the drill flag", pen.blnDrill);
    file.require(!pen.blnDrill || pen.blnCircles,
                 "only a pen that holds nothing but circles can be drilled");
    file.flagOfDrawing("the circles flag", pen.blnCircles);
    file.flag("the flag of a pen left out", pen.blnOmit);
    file.wholeOfDrawing("the count of circle sizes", pen.holes.size());
    file.number("the final pass feed rate", settings.sngFeedFinalPass);
    file.number("the final pass depth", settings.sngFinalPassDepth);
    file.endLine();
    for (auto& hole : pen.holes)
        layOutHole(file, hole);
}

template <typename File, typename Answers>
void layOut(File& file, Answers& answers) {
    file.plainLine("the drawing's digest", answers.digest);
    for (std::size_t i = 0; i < headerNames.size(); ++i) {
        file.text(headerNames[i], answers.header[i]);
        file.endLine();
    }
    file.number("the tool change height", answers.sngToolChangeHeight);
    file.number("the safe height", answers.sngSafeHeight);
    file.number("the height Rapid Down To", answers.sngRapidDownTo);
    file.number("the count of the machining order", answers.sngOrderCount);
    file.number("the feed units factor", answers.sngFeedFactor);
    const float factor = answers.sngFeedFactor;
    file.require(factor == 0 || factor == 1 || factor == 60,
                 "the feed units factor is neither 1 nor 60");
    file.endLine();
    for (auto& pen : answers.pens)
        layOutPen(file, pen);
    for (auto& entry : answers.order) {
        file.whole("an entry of the machining order", entry);
        file.endLine();
    }
    file.finish();
}

} // namespace

std::string_view savedDigest(std::string_view text) {
    return text.substr(0, text.find_first_of("\r\n"));
}

SavedAnswers parseAnswers(std::string_view text, const SavedAnswers& shape,
                          std::string_view fileName) {
    SavedAnswers answers = shape;
    SavedReader reader(text, fileName);
    layOut(reader, answers);
    return answers;
}

std::string formatAnswers(const SavedAnswers& answers) {
    SavedWriter writer;
    layOut(writer, answers);
    return writer.take();
}

} // namespace torvik
