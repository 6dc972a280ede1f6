// SPDX-License-Identifier: MIT
#include "tools/dialogs/sort_button.h"

#include "tools/dialogs/tool_grid.h"

#include <QHeaderView>
#include <QStyleOptionHeader>
#include <QStylePainter>

namespace torvik {
namespace {

struct HeaderCaption {
    const char* caption;
    const char* toolTip;
};

constexpr std::array<HeaderCaption, shownColumns> captions{{
    {QT_TRANSLATE_NOOP("SortButton", "Tool &Number"),
     QT_TRANSLATE_NOOP("SortButton", "Sort the tools by number")},
    {QT_TRANSLATE_NOOP("SortButton", "Tool &Type"),
     QT_TRANSLATE_NOOP("SortButton", "Sort the tools by type")},
    {QT_TRANSLATE_NOOP("SortButton", "Tool Dia&meter (mm)"),
     QT_TRANSLATE_NOOP("SortButton", "Sort the tools by diameter")},
}};

} // namespace

SortButton::SortButton(ToolGrid& grid, int column)
    : QPushButton(&grid), m_grid(grid), m_column(column) {
    const HeaderCaption& header = captions[static_cast<std::size_t>(column)];
    setObjectName(QStringLiteral("cmdSort%1").arg(column));
    setText(tr(header.caption));
    setToolTip(tr(header.toolTip));
    // Reached by its access key; a place in the tab order would hold the focus without showing it.
    setFocusPolicy(Qt::ClickFocus);
    setAutoDefault(false);
    setCursor(Qt::PointingHandCursor);
    connect(&grid, &ToolGrid::sorted, this, &SortButton::showDirection);
}

void SortButton::cover() {
    const QHeaderView& header = *m_grid.horizontalHeader();
    setGeometry(m_grid.frameWidth() + header.sectionViewportPosition(m_column), m_grid.frameWidth(),
                m_grid.columnWidth(m_column), header.height());
    raise();
}

void SortButton::showDirection() {
    const bool sorted = m_grid.gintSortColumn == m_column;
    setAccessibleDescription(!sorted          ? QString()
                             : isDescending() ? tr("sorted, the largest first")
                                              : tr("sorted, the smallest first"));
    update();
}

void SortButton::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionHeader option;
    option.initFrom(this);
    option.state &= ~QStyle::State_HasFocus;
    option.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    option.orientation = Qt::Horizontal;
    option.section = m_column;
    option.position = QStyleOptionHeader::Middle;
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_HeaderSection, option);
    painter.drawItemText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, palette(), isEnabled(),
                         text(), QPalette::ButtonText);
    if (m_grid.gintSortColumn != m_column)
        return;
    option.sortIndicator =
        isDescending() ? QStyleOptionHeader::SortDown : QStyleOptionHeader::SortUp;
    constexpr QSize arrow(9, 7); // pixels, above the caption
    option.rect = QRect(QPoint((width() - arrow.width()) / 2, 0), arrow);
    painter.drawPrimitive(QStyle::PE_IndicatorHeaderArrow, option);
}

bool SortButton::isDescending() const {
    return m_grid.sortText(m_column) == QStringLiteral("Desc");
}

void SortButton::focusInEvent(QFocusEvent* event) {
    QPushButton::focusInEvent(event);
    emit focused();
}

} // namespace torvik
