// SPDX-License-Identifier: MIT
#include "preview/scale_line.h"

#include "base/picture.h"
#include "forms/spoken_role.h"
#include "preview/scale_length.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

// Pixels.
constexpr int margin = 8;
constexpr int gap = 8;
constexpr int endHeight = 4; // of the strokes at the bar's ends, above and below it
constexpr int widestBar = 160;
constexpr int shortestBar = 12;

QString millimetres(double length, int decimals) {
    return QString::fromStdString(formatFixed(length, decimals));
}

} // namespace

ScaleLine::ScaleLine(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picScale"));
    setSpokenRole(*this, QAccessible::StaticText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ScaleLine::showScale(double width, double height, double pixelsPerMm) {
    m_size = tr("%1 × %2 mm").arg(millimetres(width, 1), millimetres(height, 1));
    m_pixelsPerMm = pixelsPerMm;
    setAccessibleName(
        tr("Drawing, %1 mm wide, %2 mm high").arg(millimetres(width, 1), millimetres(height, 1)));
    setToolTip(tr("Width and height of the drawing, and a bar to measure with"));
    fitBar();
}

void ScaleLine::clear() {
    m_size.clear();
    m_barLength = 0;
    setAccessibleName({});
    setToolTip({});
    update();
}

void ScaleLine::fitBar() {
    m_barLength = m_size.isEmpty() ? 0 : roundLength(widestBar / m_pixelsPerMm);
    const int room = width() - fontMetrics().horizontalAdvance(m_size) - 2 * margin - 2 * gap;
    while (m_barLength > 0 && barPixels() + fontMetrics().horizontalAdvance(barText()) > room) {
        constexpr double less = 0.99; // than itself
        m_barLength = roundLength(m_barLength * less);
        if (barPixels() < shortestBar)
            m_barLength = 0;
    }
    update();
}

int ScaleLine::barPixels() const {
    return static_cast<int>(std::lround(m_barLength * m_pixelsPerMm));
}

QString ScaleLine::barText() const {
    const int decimals =
        static_cast<int>(std::clamp(std::ceil(-std::log10(m_barLength)), 0.0, 3.0));
    return tr("%1 mm").arg(millimetres(m_barLength, decimals));
}

QSize ScaleLine::sizeHint() const {
    return {0, fontMetrics().height() + margin};
}

void ScaleLine::paintEvent(QPaintEvent*) {
    if (m_size.isEmpty())
        return;
    QPainter painter(this);
    const QRect line = rect().adjusted(margin, 0, -margin, 0);
    paintSize(painter, line);
    if (m_barLength == 0)
        return;
    const QString text = barText();
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, text);
    const int right = line.right() - fontMetrics().horizontalAdvance(text) - gap;
    const int left = right - barPixels();
    const int middle = line.center().y();
    painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
    painter.drawLine(left, middle, right, middle);
    for (const int end : {left, right})
        painter.drawLine(end, middle - endHeight, end, middle + endHeight);
}

// In smaller letters where the picture is too narrow for it.
void ScaleLine::paintSize(QPainter& painter, const QRect& line) const {
    const double fits = static_cast<double>(line.width()) / fontMetrics().horizontalAdvance(m_size);
    QFont letters = font();
    if (fits < 1)
        letters.setPointSizeF(std::max(1.0, letters.pointSizeF() * fits));
    painter.setFont(letters);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, m_size);
    painter.setFont(font());
}

void ScaleLine::resizeEvent(QResizeEvent*) {
    fitBar();
}

} // namespace torvik
