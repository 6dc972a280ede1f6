// SPDX-License-Identifier: MIT
#include "prepare/dxf/dxf_source.h"

#include "base/errors.h"
#include "job/hpgl_reader.h"
#include "prepare/dxf/units.h"
#include "prepare/dxf/walker.h"

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

dxf::Unit unitOf(const dxf::Document& document, const SourceOptions& options,
                 SourceReport& report) {
    const auto named = dxf::unitOfNumber(document.unit());
    if (!named)
        report.sizeDoubt = SizeDoubt::unit;
    const dxf::Unit unit =
        options.units ? dxf::unitOf(*options.units) : named.value_or(dxf::unitOf(LengthUnit::mm));
    const std::string taken = std::string(unit.name) + " are taken";
    if (options.units)
        report.remarks.push_back("of the units, " + taken + ", as asked for");
    else if (!named)
        report.remarks.push_back("the file names no unit; " + taken);
    return unit;
}

// Drawings of buildings and land lie far from their origin. A job's places, which are singles, are
// exact to a thousandth of a mm only within the first metres.
void bringNear(SourceDrawing& drawing) {
    constexpr double near = 10'000 * plotterUnitsPerMm;
    const auto [low, high] = extentsOf(drawing.strokes);
    if (drawing.strokes.empty() || std::max({std::fabs(low.x), std::fabs(low.y), std::fabs(high.x),
                                             std::fabs(high.y)}) <= near)
        return;
    for (std::vector<Stroke>* const strokes : {&drawing.strokes, &drawing.leftOut})
        for (Stroke& stroke : *strokes)
            stroke = mapped(stroke, moved(low * -1));
    drawing.report.remarks.emplace_back(
        "the drawing lies more than 10 m from its origin; its lower left corner comes to 0, 0");
}

SourceDrawing draw(const dxf::Document& document, const SourceOptions& options) {
    SourceDrawing drawing;
    SourceReport& report = drawing.report;
    report.selectedPen = true;
    report.hasLayers = true;
    if (!document.isWhole())
        report.remarks.emplace_back("the file ends in the middle; what it holds is drawn");
    const double size = unitOf(document, options, report).mm * plotterUnitsPerMm;
    StrokeSink sink(options, drawing, false);
    dxf::Walker(document, options, report, sink).draw(scaled(size, size));
    bringNear(drawing);
    for (const Stroke& stroke : drawing.strokes)
        requireOnPaper(stroke);
    return drawing;
}

} // namespace

SourceDrawing readDxf(std::string_view bytes, std::string_view fileName,
                      const SourceOptions& options) {
    try {
        return draw(dxf::Document(bytes), options);
    } catch (const RunTimeError& error) {
        throw FileError(std::string(fileName), error.what());
    }
}

} // namespace torvik
