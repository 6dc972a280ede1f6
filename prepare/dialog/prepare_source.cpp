// SPDX-License-Identifier: MIT
#include "prepare/dialog/prepare_source.h"

#include "base/errors.h"
#include "base/files.h"
#include "base/logger.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "job/records.h"
#include "prepare/files/drawing_files.h"

#include <QCoreApplication>

#include <exception>
#include <new>

namespace torvik {
namespace {

std::string tr(const char* text) {
    return QCoreApplication::translate("FrmPrepare", text).toStdString();
}

std::vector<SourcePen> pensOf(const SourceDrawing& drawing, const std::map<int, int>& mapped) {
    std::vector<SourcePen> pens;
    for (const ColourUse& use : drawing.report.colours)
        pens.push_back({0, use.colour, use.strokes, use.pen});
    if (!pens.empty())
        return pens;
    std::map<int, long> counts;
    for (const Stroke& stroke : drawing.strokes)
        ++counts[stroke.pen];
    for (const auto& [number, count] : counts) {
        const auto chosen = mapped.find(number);
        const int usual = number <= penCount ? number : 0;
        pens.push_back({number, {}, count, chosen != mapped.end() ? chosen->second : usual});
    }
    return pens;
}

// Said here in the dialog's own words, with all such pens at once.
void requirePens(const std::vector<SourcePen>& pens) {
    std::string list;
    for (const SourcePen& pen : pens)
        if (pen.target == 0)
            list += (list.empty() ? "" : ", ") + std::to_string(pen.number);
    if (!list.empty())
        throw RunTimeError(QCoreApplication::translate("FrmPrepare",
                                                       "The drawing uses pens above 8 (%1). "
                                                       "Choose a pen for each in the list of pens.")
                               .arg(QString::fromStdString(list))
                               .toStdString());
}

// What would be lost of the source if it were opened as it is; a picture cannot be.
std::string lossAsItIs(const SourceDrawing& source, const std::string& bytes) {
    if (!source.report.colours.empty())
        return {};
    try {
        Drawing drawing;
        Logger logger;
        readInstructions(drawing, bytes, "the drawing", logger);
        return QCoreApplication::translate("FrmPrepare", "%1 instructions")
            .arg(drawing.reading.lost)
            .toStdString();
    } catch (const RunTimeError&) {
        return tr("all of it");
    }
}

std::shared_ptr<const StrokePicture> pictureBefore(std::span<const Stroke> strokes,
                                                   std::span<const Stroke> leftOut) {
    auto picture = std::make_shared<StrokePicture>(pictureOf(strokes));
    picture->faint = pathOf(leftOut);
    return picture;
}

StrokePicture pictureAfter(const PreparedDrawing& prepared) {
    const BesideReport& beside = prepared.report.beside;
    StrokePicture picture = pictureOf(prepared.strokes);
    picture.tools = beside.tools;
    picture.unreached = pathOf(beside.narrow);
    picture.texts = prepared.report.source.texts;
    picture.tabs = beside.tabs;
    return picture;
}

void prepareInto(PrepareResult& result, const PrepareRequest& request) {
    const std::string name = utf8FromPath(request.source);
    if (!result.bytes)
        result.bytes =
            std::make_shared<const std::string>(readWholeFile(request.source, maxDrawingBytes));
    SourceDrawing drawing = readSource(*result.bytes, name, request.sourceOptions);
    result.pens = pensOf(drawing, request.options.pens);
    result.sizeDoubt = drawing.report.sizeDoubt;
    result.hasLayers = drawing.report.hasLayers;
    // What is shown where the preparation fails.
    result.before = pictureBefore(drawing.strokes, drawing.leftOut);
    requirePens(result.pens);
    const std::string loss = lossAsItIs(drawing, *result.bytes);

    PrepareOptions options = request.options;
    options.keepBefore = true;
    const PreparedDrawing prepared = prepareDrawing(std::move(drawing), options);
    result.before = pictureBefore(prepared.before, prepared.leftOut);
    result.after = std::make_shared<const StrokePicture>(pictureAfter(prepared));
    result.rows = reportRows(prepared.report);
    if (!loss.empty())
        result.rows.push_back({tr("Lost without preparing"), loss});
    result.lost = lossRows(prepared.report);
    result.text = prepared.text;
}

// A sentence begins with a capital letter; a path stays as it is.
std::string asSentence(std::string text) {
    if (text.starts_with("the "))
        text[0] = 'T';
    return text;
}

} // namespace

PrepareResult prepareSource(const PrepareRequest& request) {
    PrepareResult result;
    result.bytes = request.bytes;
    try {
        prepareInto(result, request);
    } catch (const std::bad_alloc&) {
        result.error = tr("There is not enough memory for this drawing");
    } catch (const std::exception& error) {
        result.error = asSentence(error.what());
    }
    return result;
}

} // namespace torvik
