// SPDX-License-Identifier: MIT
#include "wizard/pen_pictures.h"

#include "forms/colour.h"
#include "job/job.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace torvik {
namespace {

constexpr int side = 24;         // logical pixels
constexpr qreal sharpness = 4.0; // drawn this much larger, for screens of any scale

struct Picture {
    std::int16_t run;
    std::int16_t pen;
};

Picture pictureOf(std::int16_t image) {
    const auto run = static_cast<std::int16_t>((image - 1) / penCount * penCount);
    return {run, static_cast<std::int16_t>(image - run)};
}

QColor penColour(const Job& job, std::int16_t pen) {
    return colourOf(job.answers.gudtPens[pen].lngColour);
}

void drawTile(QPainter& painter) {
    painter.setPen(QPen(QColor(0xA0, 0xA0, 0xA0), 1));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(1.5, 1.5, side - 3, side - 3), 3, 3);
}

void drawLine(QPainter& painter, const QColor& colour) {
    QPainterPath path(QPointF(5, 17));
    path.cubicTo(QPointF(9, 2), QPointF(14, 22), QPointF(19, 7));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(path);
}

void drawCross(QPainter& painter) {
    painter.setPen(QPen(QColor(0x60, 0x60, 0x60), 2.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(6, 6), QPointF(18, 18));
    painter.drawLine(QPointF(18, 6), QPointF(6, 18));
}

void drawCircles(QPainter& painter, const QColor& colour) {
    painter.setPen(QPen(colour, 2.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(9, 14), 4.5, 4.5);
    painter.drawEllipse(QPointF(16, 8.5), 3, 3);
}

void drawHole(QPainter& painter, const QColor& colour) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QPointF(12, 12), 6.5, 6.5);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.drawLine(QPointF(12, 7.5), QPointF(12, 16.5));
    painter.drawLine(QPointF(7.5, 12), QPointF(16.5, 12));
}

} // namespace

QIcon penPicture(std::int16_t image, const Job& job) {
    const auto [run, pen] = pictureOf(image);
    const QColor colour = penColour(job, pen);
    QPixmap pixmap(QSize(side, side) * sharpness);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(sharpness, sharpness);
    drawTile(painter);
    switch (run) {
    case imageOmitted:
        drawLine(painter, colour.lighter(150));
        drawCross(painter);
        break;
    case imageCircles:
        drawCircles(painter, colour);
        break;
    case imageHole:
        drawHole(painter, colour);
        break;
    default:
        drawLine(painter, colour);
    }
    return {pixmap};
}

QString penPictureText(std::int16_t image) {
    switch (pictureOf(image).run) {
    case imageOmitted:
        return QCoreApplication::translate("PenPicture", "left out");
    case imageCircles:
        return QCoreApplication::translate("PenPicture", "circles");
    case imageHole:
        return QCoreApplication::translate("PenPicture", "hole size");
    default:
        return QCoreApplication::translate("PenPicture", "lines to cut");
    }
}

} // namespace torvik
