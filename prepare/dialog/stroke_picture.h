// SPDX-License-Identifier: MIT
// Strokes made ready for painting, in mm, Y upwards: paths of one pen each, small enough that those
// out of sight are passed over. And the painting of a part of them into an image, which any thread
// may do, one at a time for each picture.
#pragma once

#include "prepare/strokes.h"

#include <QImage>
#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>
#include <QTransform>

#include <span>
#include <stop_token>
#include <vector>

namespace torvik {

// A part of the strokes of one pen.
struct PictureChunk {
    int pen = 1;
    QPainterPath path;
    QRectF bounds;
    QPolygonF joints;  // where an element ends and another begins
    QPolygonF centres; // of circles
};

struct StrokePicture {
    std::vector<PictureChunk> chunks;
    QRectF bounds;
    std::size_t elements = 0;
    std::size_t circles = 0;
};

// Of strokes in plotter units.
StrokePicture pictureOf(std::span<const Stroke> strokes);

// What of a drawing a view shows.
struct ViewPlace {
    double scale = 1; // pixels for each mm
    QPointF centre;   // mm

    bool operator==(const ViewPlace&) const = default;
    // From mm to the pixels of a view of this size.
    QTransform transform(QSizeF size) const;
};

// The picture on white as a view of that size (pixels) sees it, with `ratio` image pixels for each
// of them. Few joints and centres are marked. Stopped, the image is left unfinished.
QImage paintPicture(const StrokePicture& picture, const ViewPlace& place, QSize size, double ratio,
                    const std::stop_token& stop);

} // namespace torvik
