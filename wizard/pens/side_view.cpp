// SPDX-License-Identifier: MIT
#include "wizard/pens/side_view.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>

namespace torvik::side_view {
namespace {

constexpr double lineWidth = 1.6;
constexpr double edgeWidth = 3; // with the light edge
constexpr double headLength = 5;
constexpr double headAngle = 28; // degrees between the arrow and each stroke of its head

void addHead(QPainterPath& path, const QLineF& arrow) {
    for (const double side : {-headAngle, headAngle}) {
        QLineF stroke(arrow.p2(), arrow.p1());
        stroke.setLength(headLength);
        stroke.setAngle(stroke.angle() + side);
        path.moveTo(stroke.p1());
        path.lineTo(stroke.p2());
    }
}

} // namespace

void drawTool(QPainter& painter, const Tool& tool) {
    const auto& [left, right, top, bottom, point] = tool;
    painter.setPen(QPen(steelEdge, 1.5));
    painter.setBrush(steel);
    painter.drawPolygon(QPolygon({{left, top},
                                  {right, top},
                                  {right, bottom},
                                  {(left + right) / 2, bottom + point},
                                  {left, bottom}}));
    for (int y = top + 6; y + 8 < bottom; y += 9)
        painter.drawLine(left, y + 6, right, y);
}

void drawMark(QPainter& painter, const QPainterPath& line) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, lineWidth + edgeWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(line);
    painter.setPen(QPen(mark, lineWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(line);
}

void drawArrow(QPainter& painter, QPointF from, QPointF to, Heads heads) {
    QPainterPath path(from);
    path.lineTo(to);
    addHead(path, {from, to});
    if (heads == Heads::both)
        addHead(path, {to, from});
    drawMark(painter, path);
}

void drawWord(QPainter& painter, QPointF left, const QString& word) {
    QPainterPath path;
    path.addText(left, painter.font(), word);
    painter.strokePath(path, QPen(Qt::white, edgeWidth, Qt::SolidLine, Qt::RoundCap));
    painter.fillPath(path, mark);
}

} // namespace torvik::side_view
