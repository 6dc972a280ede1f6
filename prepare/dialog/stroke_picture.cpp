// SPDX-License-Identifier: MIT
#include "prepare/dialog/stroke_picture.h"

#include "job/hpgl_reader.h"
#include "prepare/arcs.h"
#include "prepare/dialog/pen_colour.h"

#include <QPainter>

#include <cmath>
#include <map>

namespace torvik {
namespace {

constexpr std::size_t chunkSize = 1000; // elements
constexpr qsizetype mostMarked = 3000;  // joints or centres in sight
constexpr double dotRadius = 0.25;      // mm, of a dot as it is shown
constexpr double jointGap = 7;  // pixels, as below: nearer ones would grow into a thick line
constexpr double jointSide = 3; // pixels, as below
constexpr double centreArm = 4;

QPointF inMm(Point p) {
    return QPointF(p.x, p.y) / plotterUnitsPerMm;
}

// The painter's angles grow clockwise where Y points upwards.
void addArc(QPainterPath& path, Point start, const Segment& arc) {
    const Point arm = start - arc.first;
    const double radius = length(arm) / plotterUnitsPerMm;
    const QPointF centre = inMm(arc.first);
    const QRectF square(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    path.arcTo(square, -degrees(std::atan2(arm.y, arm.x)), -arc.sweep);
}

void addSegment(QPainterPath& path, Point start, const Segment& segment) {
    if (isLine(segment))
        path.lineTo(inMm(segment.end));
    else if (isArc(segment))
        addArc(path, start, segment);
    else
        path.cubicTo(inMm(segment.first), inMm(segment.second), inMm(segment.end));
}

class PictureMaker {
public:
    void add(const Stroke& stroke) {
        begin(stroke.pen, stroke.start);
        if (stroke.isDot())
            m_chunk->path.addEllipse(inMm(stroke.start), dotRadius, dotRadius);
        else if (stroke.isCircle())
            addCircle(stroke);
        else
            addPieces(stroke);
    }

    StrokePicture finish() {
        for (PictureChunk& chunk : m_picture.chunks)
            chunk.bounds = chunk.path.controlPointRect();
        return std::move(m_picture);
    }

private:
    // The open chunk of the pen, or a new one where that is full.
    void begin(int pen, Point start) {
        auto& [index, elements] = m_open[pen];
        if (elements == 0 || elements >= chunkSize) {
            index = m_picture.chunks.size();
            elements = 0;
            m_picture.chunks.emplace_back().pen = pen;
        }
        ++elements;
        m_chunk = &m_picture.chunks[index];
        m_elements = &elements;
        m_chunk->path.moveTo(inMm(start));
    }

    void addCircle(const Stroke& stroke) {
        addArc(m_chunk->path, stroke.start, stroke.segments[0]);
        m_chunk->centres.append(inMm(stroke.segments[0].first));
        ++m_picture.elements;
        ++m_picture.circles;
    }

    void addPieces(const Stroke& stroke) {
        m_chunk->joints.append(inMm(stroke.start));
        Point place = stroke.start;
        for (const Segment& segment : stroke.segments) {
            if (*m_elements >= chunkSize)
                begin(stroke.pen, place);
            addSegment(m_chunk->path, place, segment);
            m_chunk->joints.append(inMm(segment.end));
            place = segment.end;
            ++*m_elements;
            ++m_picture.elements;
        }
    }

    struct OpenChunk {
        std::size_t index = 0;
        std::size_t elements = 0;
    };

    StrokePicture m_picture;
    std::map<int, OpenChunk> m_open;
    PictureChunk* m_chunk = nullptr;
    std::size_t* m_elements = nullptr;
};

void markJoints(QPainter& painter, const PictureChunk& chunk, const QTransform& toImage,
                double ratio) {
    const double side = jointSide * ratio;
    const QColor colour = penColour(chunk.pen);
    QPointF last(-HUGE_VAL, -HUGE_VAL);
    for (const QPointF& joint : chunk.joints) {
        const QPointF at = toImage.map(joint);
        if ((at - last).manhattanLength() < jointGap * ratio)
            continue;
        last = at;
        painter.fillRect(QRectF(at - QPointF(side, side) / 2, QSizeF(side, side)), colour);
    }
}

void markCentres(QPainter& painter, const PictureChunk& chunk, const QTransform& toImage,
                 double ratio) {
    const QPointF across(centreArm * ratio, 0);
    const QPointF up(0, centreArm * ratio);
    for (const QPointF& centre : chunk.centres) {
        const QPointF at = toImage.map(centre);
        painter.drawLine(at - across, at + across);
        painter.drawLine(at - up, at + up);
    }
}

} // namespace

StrokePicture pictureOf(std::span<const Stroke> strokes) {
    PictureMaker maker;
    for (const Stroke& stroke : strokes)
        maker.add(stroke);
    StrokePicture picture = maker.finish();
    if (const StrokeExtents extents = extentsOf(strokes); !extents.empty())
        picture.bounds = QRectF(inMm(extents.low), inMm(extents.high));
    return picture;
}

QPainterPath pathOf(std::span<const Stroke> strokes) {
    QPainterPath path;
    for (const Stroke& stroke : strokes) {
        path.moveTo(inMm(stroke.start));
        Point place = stroke.start;
        for (const Segment& segment : stroke.segments) {
            addSegment(path, place, segment);
            place = segment.end;
        }
    }
    return path;
}

QTransform ViewPlace::transform(QSizeF size) const {
    QTransform result;
    result.translate(size.width() / 2, size.height() / 2);
    result.scale(scale, -scale);
    result.translate(-centre.x(), -centre.y());
    return result;
}

namespace {

using ChunksInSight = std::vector<const PictureChunk*>;

// Opaque, so that it stays one tint where ways cross.
QColor tintOf(const QColor& colour) {
    constexpr int whites = 3; // for one part of the colour
    const auto mixed = [](int part) { return (part + whites * 255) / (whites + 1); };
    return {mixed(colour.red()), mixed(colour.green()), mixed(colour.blue())};
}

void paintSwept(QPainter& painter, const StrokePicture& picture, const ChunksInSight& inSight) {
    for (const PictureChunk* const chunk : inSight) {
        const auto tool = picture.tools.find(chunk->pen);
        if (tool == picture.tools.end())
            continue;
        painter.setPen(QPen(tintOf(penColour(chunk->pen)), tool->second, Qt::SolidLine,
                            Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(chunk->path);
    }
    painter.fillPath(picture.unreached, QColor(unreachedColour));
    // Hatched too: a tint of a red pen looks much the same to some eyes.
    const QTransform toImage = painter.transform();
    painter.resetTransform(); // a hatch of the screen's pixels
    painter.fillPath(toImage.map(picture.unreached), QBrush(Qt::white, Qt::BDiagPattern));
    painter.setTransform(toImage);
}

void paintFaint(QPainter& painter, const StrokePicture& picture, double ratio) {
    QPen pen(QColor(faintColour), std::max(1.0, std::round(ratio)));
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawPath(picture.faint);
}

} // namespace

QImage paintPicture(const StrokePicture& picture, const ViewPlace& place, QSize size, double ratio,
                    const std::stop_token& stop) {
    QImage image(QSize(static_cast<int>(std::ceil(size.width() * ratio)),
                       static_cast<int>(std::ceil(size.height() * ratio))),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    const QTransform toImage = place.transform(size) * QTransform::fromScale(ratio, ratio);
    // A level line has no height, and nothing meets what is empty.
    const double trifle = 2 / place.scale;
    double widest = trifle;
    for (const auto& [pen, diameter] : picture.tools)
        widest = std::max(widest, diameter);
    const QRectF seen =
        toImage.inverted().mapRect(QRectF(image.rect())).adjusted(-widest, -widest, widest, widest);
    ChunksInSight inSight;
    qsizetype marks = 0;
    for (const PictureChunk& chunk : picture.chunks)
        if (seen.intersects(chunk.bounds.adjusted(-trifle, -trifle, trifle, trifle))) {
            inSight.push_back(&chunk);
            marks += chunk.joints.size() + chunk.centres.size();
        }

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(toImage);
    paintFaint(painter, picture, ratio);
    paintSwept(painter, picture, inSight);
    for (const PictureChunk* const chunk : inSight) {
        if (stop.stop_requested())
            break;
        QPen pen(penColour(chunk->pen), std::max(1.0, std::round(ratio)));
        pen.setCosmetic(true);
        painter.setPen(pen);
        painter.setTransform(toImage);
        painter.drawPath(chunk->path);
        painter.resetTransform();
        if (marks > mostMarked)
            continue;
        markJoints(painter, *chunk, toImage, ratio);
        markCentres(painter, *chunk, toImage, ratio);
    }
    painter.end();
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace torvik
