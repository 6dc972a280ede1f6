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

#include <map>
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

inline constexpr QRgb unreachedColour = 0xffd81818;
inline constexpr QRgb faintColour = 0xffb0b0b0;

struct StrokePicture {
    std::vector<PictureChunk> chunks;
    std::map<int, double> tools; // mm, of the pens whose tool runs beside the drawing's lines
    QPainterPath unreached;      // areas that such a tool cannot get into
    QPainterPath faint;          // what the source holds and nothing draws
    QRectF bounds;
    std::size_t elements = 0;
    std::size_t circles = 0;
    long texts = 0; // drawn in single strokes
    long tabs = 0;  // gaps that hold the part
};

// Of strokes in plotter units.
StrokePicture pictureOf(std::span<const Stroke> strokes);
// The same strokes as one path.
QPainterPath pathOf(std::span<const Stroke> strokes);

// What of a drawing a view shows.
struct ViewPlace {
    double scale = 1; // pixels for each mm
    QPointF centre;   // mm

    bool operator==(const ViewPlace&) const = default;
    // From mm to the pixels of a view of this size.
    QTransform transform(QSizeF size) const;
};

// The picture on white as a view of that size (pixels) sees it, with `ratio` image pixels for each
// of them. Few joints and centres are marked; what the tools sweep is tinted, what they cannot
// reach is red. Stopped, the image is left unfinished.
QImage paintPicture(const StrokePicture& picture, const ViewPlace& place, QSize size, double ratio,
                    const std::stop_token& stop);

} // namespace torvik
