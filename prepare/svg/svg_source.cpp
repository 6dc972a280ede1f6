// SPDX-License-Identifier: MIT
#include "prepare/svg/svg_source.h"

#include "base/errors.h"
#include "job/hpgl_reader.h"
#include "prepare/svg/size.h"
#include "prepare/svg/svg_names.h"
#include "prepare/svg/walker.h"

namespace torvik {
namespace {

// Y upwards from the picture's lower edge.
Affine paperMap(const svg::PictureSize& size) {
    const double units = svg::mmPerInch * plotterUnitsPerMm / size.rules.pixelsPerInch;
    return moved({0, size.height * units}) * scaled(units, -units) * size.map;
}

// A picture that names no size is as large as what it shows.
void moveToCorner(SourceDrawing& drawing) {
    const StrokeExtents extents = extentsOf(drawing.strokes);
    if (extents.empty())
        return;
    for (std::vector<Stroke>* const strokes : {&drawing.strokes, &drawing.leftOut})
        for (Stroke& stroke : *strokes)
            stroke = mapped(stroke, moved(extents.low * -1));
}

SourceDrawing draw(const svg::Document& document, const SourceOptions& options) {
    SourceDrawing drawing;
    SourceReport& report = drawing.report;
    report.selectedPen = true;
    for (const pugi::xml_node shape : document.shapes())
        ++report.instructions[std::string(svg::svgName(shape))];
    const svg::PictureSize size = svg::sizeOf(document, options);
    StrokeSink sink(options, drawing);
    svg::Walker(document, options, report, sink).draw(paperMap(size), size.rules);
    if (!size.isKnown())
        moveToCorner(drawing);
    if (!size.remark.empty())
        report.sizeDoubt = SizeDoubt::pixels;
    if (!size.remark.empty() && !drawing.strokes.empty())
        report.remarks.push_back(size.remark);
    return drawing;
}

} // namespace

SourceDrawing readSvg(std::string_view bytes, std::string_view fileName,
                      const SourceOptions& options) {
    try {
        return draw(svg::Document(bytes), options);
    } catch (const RunTimeError& error) {
        throw FileError(std::string(fileName), error.what());
    }
}

} // namespace torvik
