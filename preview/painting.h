// SPDX-License-Identifier: MIT
// From the preview's plain points to those of the painter, and the white image that
// both pictures are painted into.
#pragma once

#include "forms/colour.h"
#include "preview/outlines.h"

#include <QImage>
#include <QPainter>
#include <QPolygonF>

namespace torvik {

// Fills `polygon` with the points; it is handed in so that its memory serves again.
inline const QPolygonF& polygonOf(const Points& points, QPolygonF& polygon) {
    polygon.clear();
    for (const ScreenPoint& point : points)
        polygon.append(QPointF(point.x, point.y));
    return polygon;
}

// Makes the image white and of that size, in image pixels.
inline void clearImage(QImage& image, QSize size) {
    if (image.size() != size)
        image = QImage(size, QImage::Format_RGB32);
    image.fill(Qt::white);
}

} // namespace torvik
