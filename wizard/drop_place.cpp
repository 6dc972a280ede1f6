// SPDX-License-Identifier: MIT
#include "wizard/drop_place.h"

#include "prepare/dialog/dragged_source.h"

#include <QPainter>

namespace torvik {
namespace {

constexpr int textMargin = 14; // pixels
constexpr int rounding = 8;

QString kindsText() {
    QStringList names;
    for (const QString& kind : sourceKinds())
        names << u'.' + kind;
    return names.join(QStringLiteral(", "));
}

} // namespace

DropPlace::DropPlace() {
    setObjectName(QStringLiteral("lblDrop"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
    setMargin(textMargin);
    showDrag(false);
}

void DropPlace::showDrag(bool isOver) {
    m_isOver = isOver;
    setText(isOver ? tr("Let go to open the drawing")
                   : tr("Drop a drawing here (%1)").arg(kindsText()));
    update();
}

void DropPlace::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor edge = palette().color(m_isOver ? QPalette::Highlight : QPalette::WindowText);
    painter.setPen(QPen(edge, m_isOver ? 3 : 1, m_isOver ? Qt::SolidLine : Qt::DashLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), rounding, rounding);
    painter.end();
    QLabel::paintEvent(event);
}

} // namespace torvik
