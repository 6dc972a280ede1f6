// SPDX-License-Identifier: MIT
// Which part of the piece a picture shows: from millimetres to pixels and back. Y goes up in the
// piece and down in the picture.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace torvik {

class CutView {
public:
    static constexpr double mostZoom = 400; // times as large as the whole

    // The picture's size in pixels, and what must be seen when nothing is zoomed, in mm.
    void setSize(QSizeF size);
    void setWhole(const QRectF& whole);

    // The same part in so many image pixels for each pixel.
    void setRatio(double ratio) { m_ratio = ratio; }

    double scale() const; // pixels a millimetre
    QPointF toPixels(QPointF place) const;
    QPointF toPlace(QPointF pixel) const;

    bool isWhole() const { return m_zoom == 1; }
    // What lies under the pixel stays there.
    void zoomAbout(QPointF pixel, double factor);
    void zoomAbout(double factor);
    void moveBy(QPointF pixels);
    void showWhole();
    // Moves as little as shows the place.
    void bringIntoSight(QPointF place);

private:
    void keepInSight();

    QSizeF m_size{1, 1};
    QRectF m_whole{0, 0, 1, 1};
    QPointF m_centre; // mm
    double m_zoom = 1;
    double m_ratio = 1;
};

} // namespace torvik
