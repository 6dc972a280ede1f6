// SPDX-License-Identifier: MIT
#include "preview/cut/cut_painting.h"

#include "base/picture.h"
#include "sweep/cuts.h"

#include <QCoreApplication>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

const QColor ink{0x30, 0x30, 0x30};
const QColor quietInk{0x70, 0x70, 0x70};
const QColor uncutInk{0x6A, 0x3F, 0xA0};
const QColor chosenInk{0xD0, 0x5A, 0x00};
const QColor toolInk{0x0B, 0x62, 0xC4};
const QString zeroText = QStringLiteral("X0 Y0");
constexpr double zeroRadius = 7; // pixels
constexpr double textGap = 6;
constexpr double chordTurn = 0.05; // radians

QPen penOf(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QPolygonF wayOf(const check::Move& move) {
    QPolygonF way;
    const int chords =
        move.isArc() ? std::max(1, static_cast<int>(std::ceil(move.sweep() / chordTurn))) : 1;
    if (std::isfinite(move.from.x) && std::isfinite(move.from.y))
        way.append({move.from.x, move.from.y});
    for (int i = 1; i <= chords; ++i) {
        const check::Move part = sweep::partOf(move, static_cast<double>(i) / chords);
        way.append({part.to.x, part.to.y});
    }
    return way;
}

} // namespace

QString shortNumber(double number) {
    QString text = QString::fromStdString(formatFixed(number, 2));
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}

QString lengthText(double length) {
    return shortNumber(length) + QStringLiteral(" mm");
}

CutPainting::CutPainting(QPainter& painter, const CutView& view)
    : m_painter(painter), m_view(view) {
    m_painter.setRenderHint(QPainter::Antialiasing);
}

QPolygonF CutPainting::onScreen(const QPolygonF& places) const {
    QPolygonF pixels;
    for (const QPointF& place : places)
        pixels.append(m_view.toPixels(place));
    return pixels;
}

void CutPainting::billet(const CutBillet& billet) {
    const QRectF edge(m_view.toPixels({billet.lowX, billet.lowY + billet.width}),
                      m_view.toPixels({billet.lowX + billet.length, billet.lowY}));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(penOf(ink, 1.5));
    m_painter.drawRect(edge);
    sizes(edge, billet);
}

// Below and on the left, in the middle of the edge.
void CutPainting::sizes(const QRectF& edge, const CutBillet& billet) {
    const QFontMetricsF metrics(m_painter.font());
    m_painter.setPen(quietInk);
    QString length = lengthText(billet.length);
    if (billet.depth > 0)
        length = QCoreApplication::translate("FrmCut", "%1, %2 thick")
                     .arg(length, lengthText(billet.depth));
    QPointF at(edge.center().x() - metrics.horizontalAdvance(length) / 2,
               edge.bottom() + textGap + metrics.ascent());
    if (at.x() < m_view.toPixels({0, 0}).x() + metrics.horizontalAdvance(zeroText))
        at.ry() += zeroRadius + metrics.height(); // a small billet: below the zero point's text
    m_painter.drawText(at, length);
    const QString width = lengthText(billet.width);
    m_painter.save();
    m_painter.translate(edge.left() - textGap - metrics.descent(), edge.center().y());
    m_painter.rotate(-90);
    m_painter.drawText(QPointF(-metrics.horizontalAdvance(width) / 2, 0), width);
    m_painter.restore();
}

// The sign of drawings for a zero point: a circle with two of its quarters filled.
void CutPainting::zeroPoint() {
    const QPointF at = m_view.toPixels({0, 0});
    const QRectF circle(at - QPointF(zeroRadius, zeroRadius), QSizeF(2, 2) * zeroRadius);
    m_painter.setPen(penOf(ink, 1.5));
    m_painter.setBrush(Qt::white);
    m_painter.drawEllipse(circle);
    m_painter.setBrush(ink);
    m_painter.drawPie(circle, 0, 90 * 16);
    m_painter.drawPie(circle, 180 * 16, 90 * 16);
    const QFontMetricsF metrics(m_painter.font());
    m_painter.drawText(
        QPointF(at.x() - zeroRadius, at.y() + zeroRadius + textGap + metrics.ascent()), zeroText);
}

void CutPainting::uncut(const std::vector<QPolygonF>& paths) {
    QPen pen(uncutInk, 2, Qt::CustomDashLine, Qt::RoundCap);
    pen.setDashPattern({0.1, 2.5});
    m_painter.setPen(pen);
    m_painter.setBrush(Qt::NoBrush);
    for (const QPolygonF& path : paths)
        m_painter.drawPolyline(onScreen(path));
}

void CutPainting::move(const check::Move& move, double radius) {
    const QPolygonF way = onScreen(wayOf(move));
    if (way.isEmpty())
        return;
    QPainterPath path(way.first());
    path.addPolygon(way);
    if (way.size() < 2 || path.length() == 0)
        path.lineTo(way.first() + QPointF(0.01, 0)); // a stroke of no length leaves nothing
    QPainterPathStroker groove;
    groove.setWidth(std::max(2 * radius * m_view.scale(), 3.0));
    groove.setCapStyle(Qt::RoundCap);
    groove.setJoinStyle(Qt::RoundJoin);
    QColor inside = chosenInk;
    inside.setAlpha(0x50);
    m_painter.setPen(penOf(chosenInk, 1.5));
    m_painter.setBrush(inside);
    m_painter.drawPath(groove.createStroke(path).simplified());
}

void CutPainting::tool(const CutToolPlace& tool) {
    if (!std::isfinite(tool.place.x) || !std::isfinite(tool.place.y))
        return;
    const bool isDown = tool.place.z < 0;
    const QPointF at = m_view.toPixels({tool.place.x, tool.place.y});
    const double radius = std::max(tool.radius * m_view.scale(), 2.0);
    QColor inside = toolInk;
    inside.setAlpha(isDown ? 0xA0 : 0x28);
    m_painter.setBrush(inside);
    m_painter.setPen(isDown ? penOf(toolInk, 2) : QPen(toolInk, 1.5, Qt::DashLine));
    m_painter.drawEllipse(at, radius, radius);
}

} // namespace torvik
