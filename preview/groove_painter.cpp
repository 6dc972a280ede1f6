// SPDX-License-Identifier: MIT
#include "preview/groove_painter.h"

#include "job/records.h"

#include <cmath>

namespace torvik {
namespace {

// Up to here the painter fills an outline quicker than it strokes a line and fills its two ends;
// its time for an outline grows with the square of the length.
constexpr double longLine = 80; // image pixels

} // namespace

GroovePainter::GroovePainter(QImage& image, const PictureView& view)
    : m_painter(&image), m_view(view) {
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(Qt::NoPen);
}

void GroovePainter::setColour(std::int32_t colour) {
    if (colour == m_colour)
        return;
    m_colour = colour;
    m_painter.setBrush(colourOf(colour));
}

void GroovePainter::groove(const Path& path, double width) {
    if (path.intType == straightLine) {
        const ScreenPoint start = m_view.point(path.sngStartX, path.sngStartY);
        const ScreenPoint end = m_view.point(path.sngEndX, path.sngEndY);
        if (std::hypot(end.x - start.x, end.y - start.y) > longLine)
            return longGroove(start, end, width);
    }
    visitGroove(path, m_view, width, [this](const Points& outline) { fill(outline); });
}

void GroovePainter::disc(ScreenPoint centre, double radius) {
    discOutline(m_outline, centre, radius);
    fill(m_outline);
}

void GroovePainter::ring(ScreenPoint centre, double radius, double width) {
    ringOutline(m_outline, centre, radius, width);
    fill(m_outline);
}

void GroovePainter::longGroove(ScreenPoint start, ScreenPoint end, double width) {
    m_painter.setPen(QPen(m_painter.brush(), width, Qt::SolidLine, Qt::FlatCap));
    m_painter.drawLine(QPointF(start.x, start.y), QPointF(end.x, end.y));
    m_painter.setPen(Qt::NoPen);
    disc(start, width / 2);
    disc(end, width / 2);
}

void GroovePainter::fill(const Points& outline) {
    m_painter.drawPolygon(polygonOf(outline, m_polygon), Qt::WindingFill);
}

} // namespace torvik
