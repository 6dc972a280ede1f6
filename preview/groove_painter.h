// SPDX-License-Identifier: MIT
// Paints what a round tool of a given width leaves, in one colour after the other. Widths and
// radii are image pixels. Quick enough for tens of thousands of grooves in a frame.
#pragma once

#include "preview/outlines.h"
#include "preview/painting.h"

namespace torvik {

class GroovePainter {
public:
    // The view must outlive the painter.
    GroovePainter(QImage& image, const PictureView& view);

    void setColour(std::int32_t colour); // 0x00BBGGRR
    void groove(const Path& path, double width);
    void disc(ScreenPoint centre, double radius);
    void ring(ScreenPoint centre, double radius, double width);

private:
    void longGroove(ScreenPoint start, ScreenPoint end, double width);
    void fill(const Points& outline);

    QPainter m_painter;
    const PictureView& m_view;
    std::int32_t m_colour = -1;
    Points m_outline;
    QPolygonF m_polygon;
};

} // namespace torvik
