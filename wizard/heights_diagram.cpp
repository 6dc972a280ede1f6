// SPDX-License-Identifier: MIT
#include "wizard/heights_diagram.h"

#include "forms/spoken_role.h"
#include "wizard/pens/side_view.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace torvik {
namespace {

// Pixels from the left edge.
constexpr int toolLeft = 12;
constexpr int toolRight = 34;
constexpr int arrowAt = 48;
constexpr int clampLeft = 62;
constexpr int clampRight = 84;
constexpr int textLeft = 98;
constexpr int textMargin = 6; // round a text

} // namespace

HeightsDiagram::HeightsDiagram(Texts names) : m_names(std::move(names)) {
    setSpokenRole(*this, QAccessible::Graphic);
    setAccessibleName(tr("The heights seen from the side, from the top: %1, %2, %3, material")
                          .arg(m_names[0], m_names[1], m_names[2]));
    setToolTip(tr("In this order the heights lie above the material"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void HeightsDiagram::setTyped(const Texts& typed) {
    m_typed = typed;
    update();
}

void HeightsDiagram::mark(std::size_t height) {
    m_marked = std::min(height, heightCount - 1);
    update();
}

QSize HeightsDiagram::sizeHint() const {
    const int row = fontMetrics().height() + textMargin + 2;
    return {textLeft + 160, static_cast<int>(heightCount + 1) * row + textMargin};
}

int HeightsDiagram::level(std::size_t height) const {
    const int rows = static_cast<int>(heightCount) + 1;
    return (2 * static_cast<int>(height) + 1) * (this->height() / rows) / 2;
}

QString HeightsDiagram::textOf(std::size_t height) const {
    return m_typed[height].isEmpty()
               ? m_names[height]
               : tr("%1: %2 mm", "a height's name and value").arg(m_names[height], m_typed[height]);
}

void HeightsDiagram::drawMaterial(QPainter& painter) const {
    const int surface = level(heightCount) - fontMetrics().height() / 2 - 1;
    const QRect block(1, surface, width() - 2, height() - 2 - surface);
    painter.setPen(QPen(side_view::woodEdge, 1.5));
    painter.setBrush(side_view::wood);
    painter.drawRect(block);
    // A clamp, which the tool must pass above.
    painter.setPen(QPen(side_view::steelEdge, 1.5));
    painter.setBrush(side_view::steel);
    const int top = (level(1) + 2 * level(2)) / 3;
    painter.drawRect(clampLeft, top, clampRight - clampLeft, surface - top);
    painter.setPen(Qt::black);
    painter.drawText(block.adjusted(textLeft + textMargin - 1, 0, -textMargin, 0),
                     Qt::AlignLeft | Qt::AlignVCenter, tr("Top of the material: Z 0"));
}

void HeightsDiagram::drawHeight(QPainter& painter, std::size_t height) const {
    const bool isMarked = height == m_marked;
    const QColor ink = palette().color(QPalette::WindowText);
    const int y = level(height);
    painter.setPen(QPen(isMarked ? palette().color(QPalette::Highlight) : ink, isMarked ? 3 : 1,
                        isMarked ? Qt::SolidLine : Qt::DashLine));
    painter.drawLine(2, y, textLeft - 2, y);

    const QString text = fontMetrics().elidedText(textOf(height), Qt::ElideRight,
                                                  width() - textLeft - 2 * textMargin);
    const QRect place(textLeft, y - fontMetrics().height() / 2 - 1,
                      fontMetrics().horizontalAdvance(text) + 2 * textMargin,
                      fontMetrics().height() + 2);
    if (isMarked)
        painter.fillRect(place, palette().color(QPalette::Highlight));
    painter.setPen(isMarked ? palette().color(QPalette::HighlightedText) : ink);
    painter.drawText(place, Qt::AlignCenter, text);
}

void HeightsDiagram::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawMaterial(painter);
    for (std::size_t i = 0; i < heightCount; ++i)
        drawHeight(painter, i);
    side_view::drawTool(painter, {toolLeft, toolRight, -4, level(m_marked)});
    const double surface = level(heightCount) - fontMetrics().height() / 2.0 - 1;
    side_view::drawArrow(painter, QPointF(arrowAt, surface), QPointF(arrowAt, level(m_marked)),
                         side_view::Heads::both);
}

} // namespace torvik
