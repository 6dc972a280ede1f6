// SPDX-License-Identifier: MIT
#include "preview/legend.h"

#include "forms/colour.h"
#include "forms/spoken_role.h"
#include "preview/depths.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStringList>
#include <QStyleOptionFocusRect>
#include <QWheelEvent>

#include <algorithm>

namespace torvik {
namespace {

// Pixels.
constexpr int leastRow = 24;
constexpr int discRadius = 8;
constexpr int discCentre = 16; // from the row's left and upper edge
constexpr int textLeft = 33;
constexpr int columnGap = 8;
constexpr int stripEnd = 16; // right of the only column

const QColor ink{0x30, 0x30, 0x30};

// What a key does with the scroll bar, whichever way it lies.
QAbstractSlider::SliderAction actionOf(int key) {
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        return QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_Down:
    case Qt::Key_Right:
        return QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_PageUp:
        return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown:
        return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home:
        return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
        return QAbstractSlider::SliderToMaximum;
    default:
        return QAbstractSlider::SliderNoAction;
    }
}

} // namespace

Legend::Legend(QWidget* parent) : QAbstractScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setSpokenRole(*this, QAccessible::List);
    for (const QScrollBar* const scrolling : {verticalScrollBar(), horizontalScrollBar()})
        connect(scrolling, &QScrollBar::valueChanged, viewport(), qOverload<>(&QWidget::update));
    layOut();
}

void Legend::setDepths(const DepthList& depths, float shallowest, float deepest) {
    std::vector<Row> rows;
    for (const float depth : depths.gsngDepths)
        rows.push_back(
            {lngPlotColour(depth, shallowest, deepest), QString::fromStdString(depthText(depth))});
    setRows(std::move(rows));
}

void Legend::setRows(std::vector<Row> rows) {
    m_rows = std::move(rows);
    QStringList texts;
    for (const Row& row : m_rows)
        texts.append(row.text);
    setAccessibleDescription(texts.join(QStringLiteral(", ")));
    layOut();
    bar().setValue(0);
}

void Legend::clear() {
    setDepths({}, 0, 0);
}

int Legend::textWidth() const {
    int width = 0;
    for (const Row& row : m_rows)
        width = std::max(width, fontMetrics().horizontalAdvance(row.text));
    return width;
}

int Legend::rowHeight() const {
    return std::max(leastRow, fontMetrics().height());
}

int Legend::columnWidth() const {
    return textLeft + textWidth() + columnGap;
}

int Legend::stripWidth() const {
    const int text =
        std::max(textWidth(), fontMetrics().horizontalAdvance(QStringLiteral("88.88 mm")));
    return textLeft + text + std::max(stripEnd, verticalScrollBar()->sizeHint().width() + 1);
}

int Legend::rowsInColumn() const {
    return std::max(1, (viewport()->height() - overhang) / rowHeight());
}

int Legend::columnsInSight() const {
    return std::max(1, (viewport()->width() + columnGap) / columnWidth());
}

// The one that moves, if any does.
QScrollBar& Legend::bar() const {
    return columnsInSight() == 1 ? *verticalScrollBar() : *horizontalScrollBar();
}

void Legend::layOut() {
    const int rows = rowsInColumn();
    const int columns = columnsInSight();
    const int all = static_cast<int>(m_rows.size());
    const bool isList = columns == 1;
    verticalScrollBar()->setRange(0, isList ? std::max(0, all - rows) : 0);
    verticalScrollBar()->setPageStep(rows);
    horizontalScrollBar()->setRange(0, isList ? 0 : std::max(0, (all + rows - 1) / rows - columns));
    horizontalScrollBar()->setPageStep(columns);
    const bool scrolls = bar().maximum() > 0;
    setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::NoFocus);
    setToolTip(scrolls ? tr("The arrow keys show the other depths") : QString());
    viewport()->update();
}

std::vector<Legend::Row> Legend::rowsInSight() const {
    const auto rows = static_cast<std::size_t>(rowsInColumn());
    const auto columns = static_cast<std::size_t>(columnsInSight());
    const auto steps = static_cast<std::size_t>(bar().value());
    const std::size_t first = std::min(columns == 1 ? steps : steps * rows, m_rows.size());
    const std::size_t end = std::min(first + rows * columns, m_rows.size());
    return {m_rows.begin() + static_cast<std::ptrdiff_t>(first),
            m_rows.begin() + static_cast<std::ptrdiff_t>(end)};
}

void Legend::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    if (hasFocus())
        paintFocus(painter); // below the discs, so that their greys stay
    painter.setRenderHint(QPainter::Antialiasing);
    const int width = columnWidth();
    const int rows = rowsInColumn();
    int number = 0;
    for (const Row& row : rowsInSight()) {
        const QPoint corner(number / rows * width, number % rows * rowHeight());
        painter.setBrush(QBrush(colourOf(row.colour), row.fill));
        painter.setPen(ink);
        painter.drawEllipse(corner + QPoint(discCentre, discCentre), discRadius, discRadius);
        const QRect text(corner.x() + textLeft, corner.y() + discCentre - rowHeight() / 2,
                         width - textLeft, rowHeight());
        painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, row.text);
        ++number;
    }
}

void Legend::paintFocus(QPainter& painter) {
    QStyleOptionFocusRect focus;
    focus.initFrom(viewport());
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void Legend::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    layOut();
}

void Legend::keyPressEvent(QKeyEvent* event) {
    const auto action = actionOf(event->key());
    if (action == QAbstractSlider::SliderNoAction)
        event->ignore();
    else
        bar().triggerAction(action);
}

// The wheel of a mouse turns one way only.
void Legend::wheelEvent(QWheelEvent* event) {
    QCoreApplication::sendEvent(&bar(), event);
}

void Legend::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void Legend::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

} // namespace torvik
