// SPDX-License-Identifier: MIT
#include "preview/legend.h"

#include "preview/depths.h"
#include "preview/painting.h"

#include <QFontMetrics>
#include <QStringList>

#include <algorithm>

namespace torvik {
namespace {

// Pixels.
constexpr int discRadius = 8;
constexpr int discCentre = 16; // from the row's left and upper edge
constexpr int textLeft = 33;
constexpr int columnGap = 8;

const QColor ink{0x30, 0x30, 0x30};

} // namespace

Legend::Legend(QWidget* parent) : QWidget(parent) {}

void Legend::setDepths(const DepthList& depths, float shallowest, float deepest) {
    m_rows.clear();
    QStringList texts;
    for (const float depth : depths.gsngDepths) {
        m_rows.push_back(
            {lngPlotColour(depth, shallowest, deepest), QString::fromStdString(depthText(depth))});
        texts.append(m_rows.back().text);
    }
    setAccessibleDescription(texts.join(QStringLiteral(", ")));
    fitHeight(height());
    update();
}

void Legend::clear() {
    setDepths({}, 0, 0);
}

void Legend::fitHeight(int height) {
    m_rowsInColumn = std::max(1, (height - overhang) / rowHeight);
    const int rows = static_cast<int>(m_rows.size());
    const int columns = (rows + m_rowsInColumn - 1) / m_rowsInColumn;
    setMinimumWidth(columns * columnWidth());
}

int Legend::stripWidth() const {
    return textLeft + fontMetrics().horizontalAdvance(QStringLiteral("88.88 mm")) + columnGap;
}

int Legend::columnWidth() const {
    int text = 0;
    for (const Row& row : m_rows)
        text = std::max(text, fontMetrics().horizontalAdvance(row.text));
    return textLeft + text + columnGap;
}

void Legend::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int width = columnWidth();
    int number = 0;
    for (const Row& row : m_rows) {
        const QPoint corner(number / m_rowsInColumn * width, number % m_rowsInColumn * rowHeight);
        painter.setBrush(colourOf(row.colour));
        painter.setPen(ink);
        painter.drawEllipse(corner + QPoint(discCentre, discCentre), discRadius, discRadius);
        const QRect text(corner.x() + textLeft, corner.y() + discCentre - rowHeight / 2,
                         width - textLeft, rowHeight);
        painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, row.text);
        ++number;
    }
}

} // namespace torvik
