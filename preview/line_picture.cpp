// SPDX-License-Identifier: MIT
#include "preview/line_picture.h"

#include "job/job.h"
#include "preview/depths.h"
#include "preview/groove_painter.h"
#include "preview/sharp_lines.h"

#include <cmath>

namespace torvik {
namespace {

// Paints lines of one pixel. The painter is quick with just these; wider ones are grooves.
class ThinLinePainter {
public:
    ThinLinePainter(QImage& image, const PictureView& view, const Job& job)
        : m_painter(&image), m_view(view), m_sharpLines(job, view, image.width(), image.height()) {
        m_painter.setRenderHint(QPainter::Antialiasing);
    }

    void setColour(std::int32_t colour) {
        if (colour == m_colour)
            return;
        m_colour = colour;
        m_painter.setPen(QPen(colourOf(colour), 1, Qt::SolidLine, Qt::SquareCap));
    }

    void groove(const Path& path, double) {
        m_line.clear();
        appendLine(m_line, path, m_view);
        m_sharpLines.align(m_line);
        const QPointF start(m_line.front().x, m_line.front().y);
        if (polygonOf(m_line, m_polygon).count(start) == m_polygon.size()) // it would not show
            m_painter.fillRect(QRectF(start - QPointF(0.5, 0.5), QSizeF(1, 1)), colourOf(m_colour));
        else
            m_painter.drawPolyline(m_polygon);
    }

private:
    QPainter m_painter;
    const PictureView& m_view;
    SharpLines m_sharpLines;
    std::int32_t m_colour = -1;
    Points m_line;
    QPolygonF m_polygon;
};

// A line of odd width is sharp in the middle of pixels, one of even width between them.
PictureView alignedToPixels(PictureView view) {
    if (std::fmod(view.lineWidth(), 2) == 1) {
        view.origin.x += 0.5;
        view.origin.y += 0.5;
    }
    return view;
}

template <typename LinePainter>
void paintLines(LinePainter&& painter, const Job& job, double width,
                const std::vector<bool>& shown) {
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (!shown[i])
            continue;
        const Path& path = job.drawing.gudtPaths[static_cast<long>(i) + 1];
        painter.setColour(lngPenColour(job.answers, path.intPen));
        painter.groove(path, width);
    }
}

void paintLines(QImage& image, const Job& job, const PictureView& view,
                const std::vector<bool>& shown) {
    const PictureView aligned = alignedToPixels(view);
    const double width = view.lineWidth();
    if (width > 1)
        paintLines(GroovePainter(image, aligned), job, width, shown);
    else
        paintLines(ThinLinePainter(image, aligned, job), job, width, shown);
}

std::vector<bool> machinedPaths(const Job& job) {
    std::vector<bool> machined;
    machined.reserve(static_cast<std::size_t>(job.drawing.gudtPaths.count()));
    for (const Path& path : job.drawing.gudtPaths)
        machined.push_back(!job.answers.gudtPens[path.intPen].blnOmit);
    return machined;
}

std::size_t flagOf(const Job& job, std::int16_t path) {
    if (path < 1 || path > job.drawing.gudtPaths.count())
        throw SubscriptOutOfRange(path, 1, job.drawing.gudtPaths.count());
    return static_cast<std::size_t>(path - 1);
}

} // namespace

void LinePicture::PlotLines(const Job& job, const PictureView& view, QSize size) {
    if (view != m_view || size != m_size)
        forget();
    m_view = view;
    m_size = size;
    m_machined = machinedPaths(job);
    m_shown = m_machined;
    showFlags(job, m_shown, 0);
}

void LinePicture::DrawLine(const Job& job, std::int16_t path, std::int16_t mode) {
    m_shown[flagOf(job, path)] = mode == 0;
    showFlags(job, m_shown, m_shown == m_machined ? 0 : 1);
}

void LinePicture::plotBlink(const Job& job, const std::vector<std::int16_t>& paths, bool visible) {
    m_shown = m_machined;
    for (const std::int16_t path : paths)
        m_shown[flagOf(job, path)] = false;
    showFlags(job, m_shown, 1); // at once, so that no later frame of the blinking takes longer
    if (visible) {
        m_shown = m_machined;
        showFlags(job, m_shown, 0);
    }
}

void LinePicture::forget() {
    for (Frame& frame : m_frames)
        frame.valid = false;
}

void LinePicture::showFlags(const Job& job, const Flags& shown, std::size_t number) {
    m_current = number;
    Frame& frame = m_frames[number];
    if (frame.valid && frame.shown == shown)
        return;
    frame.valid = false;
    clearImage(frame.image, m_size);
    paintLines(frame.image, job, m_view, shown);
    frame.shown = shown;
    frame.valid = true;
}

} // namespace torvik
