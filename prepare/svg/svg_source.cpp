// SPDX-License-Identifier: MIT
#include "prepare/svg/svg_source.h"

#include "base/errors.h"
#include "job/hpgl_reader.h"
#include "prepare/source/stroke_recorder.h"
#include "prepare/svg/pen_colours.h"
#include "prepare/svg/recording_device.h"
#include "prepare/svg/svg_document.h"
#include "prepare/svg/svg_lengths.h"

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace torvik {
namespace {

// The rectangle in plotter units that the view box fills, Y downwards from the picture's top.
QRectF targetOf(const SvgDocument& document) {
    const QSizeF size = document.sizeInMm * plotterUnitsPerMm;
    if (!document.keepsAspect)
        return {QPointF(), size};
    const QSizeF filled = document.viewBox.size().scaled(size, Qt::KeepAspectRatio);
    return {QPointF((size.width() - filled.width()) / 2, (size.height() - filled.height()) / 2),
            filled};
}

std::vector<ColouredStroke> render(SvgDocument& document, SourceReport& report) {
    QSvgRenderer renderer;
    if (!renderer.load(document.text))
        throw RunTimeError("the picture cannot be understood");
    if (document.viewBox.isEmpty()) {
        document.viewBox = renderer.viewBoxF();
        document.sizeInMm = document.viewBox.size() * mmPerUserUnit;
    }
    if (document.viewBox.isEmpty())
        return {};
    renderer.setViewBox(document.viewBox);
    RecordingDevice device(report);
    QPainter painter(&device);
    renderer.render(&painter, targetOf(document));
    painter.end();
    return device.takeStrokes();
}

class PenChooser {
public:
    PenChooser(const SvgSourceOptions& options, SourceReport& report)
        : m_options(options), m_report(report) {}

    int choose(std::uint32_t colour) {
        const std::string name = colourName(colour);
        auto& uses = m_report.colours;
        auto use = std::find_if(uses.begin(), uses.end(),
                                [&](const ColourUse& one) { return one.colour == name; });
        if (use == uses.end()) {
            const auto wanted = m_options.pens.find(name);
            const int pen = wanted != m_options.pens.end() ? wanted->second : nearestPen(colour);
            use = uses.insert(use, {name, pen, 0});
        }
        ++use->strokes;
        return use->pen;
    }

private:
    const SvgSourceOptions& m_options;
    SourceReport& m_report;
};

// Y upwards from the picture's bottom.
Stroke turnedOver(Stroke stroke, double height) {
    const auto over = [height](Point p) { return Point{p.x, height - p.y}; };
    if (stroke.isCircle()) {
        const Segment& arc = stroke.segments[0];
        return circleStroke(stroke.pen, over(arc.first), distance(arc.first, stroke.start));
    }
    stroke.start = over(stroke.start);
    for (Segment& segment : stroke.segments) {
        segment.end = over(segment.end);
        segment.first = over(segment.first);
        segment.second = over(segment.second);
        segment.sweep = -segment.sweep;
        requireOnPaper(segment.end);
        requireOnPaper(segment.first);
        requireOnPaper(segment.second);
    }
    return stroke;
}

} // namespace

SourceDrawing readSvg(std::string_view bytes, std::string_view fileName,
                      const SvgSourceOptions& options) {
    SourceDrawing drawing;
    drawing.report.selectedPen = true;
    try {
        const auto size = static_cast<qsizetype>(bytes.size());
        SvgDocument document = readSvgDocument(QByteArray(bytes.data(), size), drawing.report);
        PenChooser pens(options, drawing.report);
        for (ColouredStroke& coloured : render(document, drawing.report)) {
            coloured.stroke.pen = pens.choose(coloured.colour);
            drawing.strokes.push_back(turnedOver(std::move(coloured.stroke),
                                                 document.sizeInMm.height() * plotterUnitsPerMm));
        }
    } catch (const RunTimeError& error) {
        throw FileError(std::string(fileName), error.what());
    }
    return drawing;
}

} // namespace torvik
