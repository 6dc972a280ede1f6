// SPDX-License-Identifier: MIT
#include "tools/dialogs/tool_grid.h"

#include "base/error_trap.h"
#include "base/numbers.h"
#include "base/picture.h"
#include "forms/target_size.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace torvik {
namespace {

constexpr std::string_view module = "modHpgl";
constexpr int borders = 6;        // pixels, of both sides together
constexpr int typeMargins = 8;    // pixels, of both sides together
constexpr int longestType = 30;   // letters
constexpr int scrollBarRoom = 16; // pixels

// The library's own comparison of texts follows the locale and not their case.
class ToolCell : public QTableWidgetItem {
public:
    using QTableWidgetItem::QTableWidgetItem;

    bool operator<(const QTableWidgetItem& other) const override {
        if (column() == columnType)
            return QString::compare(text(), other.text(), Qt::CaseSensitive) < 0;
        return leadingNumber(text().toStdString()) < leadingNumber(other.text().toStdString());
    }
};

// Draws a text over the whole width of its cell, without the margins that the library keeps.
class CentredTexts : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        const QString text =
            cell.fontMetrics.elidedText(cell.text, Qt::ElideRight, cell.rect.width());
        cell.text.clear();
        const QStyle& style = *cell.widget->style();
        style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
        const bool active = cell.state & QStyle::State_Active;
        cell.palette.setCurrentColorGroup(active ? QPalette::Active : QPalette::Inactive);
        style.drawItemText(painter, cell.rect, Qt::AlignCenter, cell.palette, true, text,
                           cell.state & QStyle::State_Selected ? QPalette::HighlightedText
                                                               : QPalette::Text);
    }
};

} // namespace

ToolGrid::ToolGrid(QWidget* parent) : QTableWidget(shownRows, shownColumns + 1, parent) {
    setObjectName(QStringLiteral("grdTools"));
    setAccessibleName(tr("Tools"));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setItemDelegate(new CentredTexts(this));
    setFrameStyle(QFrame::Box | QFrame::Sunken);
    setMidLineWidth(1); // a border of three pixels
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(0);
    setColumnHidden(columnPlace, true);
    for (int column = 0; column <= shownColumns; ++column) {
        auto* const cell = new QTableWidgetItem;
        cell->setData(
            Qt::AccessibleTextRole,
            column < shownColumns
                ? QString::fromUtf8(headerTexts[static_cast<std::size_t>(column)]).trimmed()
                : tr("Place in the list"));
        setHorizontalHeaderItem(column, cell);
    }
    clearTools();
}

QString ToolGrid::noToolsText() {
    return tr(
        "There are no tools yet. Press Add and enter the tools of your workshop, each with its "
        "number and the diameter that you measure.");
}

void ToolGrid::clearTools() {
    clearContents();
    setRowCount(shownRows);
    gintToolRows = 0;
    setAccessibleDescription(noToolsText());
    for (int column = 0; column <= shownColumns; ++column)
        setSortText(column, {});
    selectPlace(0);
}

int ToolGrid::appendTool(const QString& number, const Tool& tool, std::int16_t place) {
    const int row = gintToolRows;
    if (row >= rowCount())
        insertRow(row);
    for (int column = 0; column <= columnPlace; ++column) {
        auto* const cell = new ToolCell;
        cell->setTextAlignment(Qt::AlignCenter);
        setItem(row, column, cell);
    }
    setTool(row, number, tool);
    item(row, columnPlace)->setText(QString::number(place));
    ++gintToolRows;
    setAccessibleDescription({});
    return row;
}

void ToolGrid::setTool(int row, const QString& number, const Tool& tool) {
    const bool readable = !tool.strUnreadable;
    const QString type = QString::fromStdString(readable ? tool.strType : *tool.strUnreadable);
    item(row, columnNumber)->setText(readable ? number : QString());
    item(row, columnType)->setText(type);
    item(row, columnType)->setToolTip(type); // it may be too long to show
    item(row, columnDiameter)
        ->setText(readable ? QString::fromStdString(formatFixed(tool.sngDiameter, 3))
                           : tr("cannot be read"));
}

int ToolGrid::selectedRow() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

std::int16_t ToolGrid::placeAt(int row) const {
    const QTableWidgetItem* const cell = item(row, columnPlace);
    return cell == nullptr ? std::int16_t{0} : toInt16(leadingNumber(cell->text().toStdString()));
}

void ToolGrid::selectPlace(std::int16_t place) {
    selectionModel()->clear();
    for (int row = 0; place != 0 && row < gintToolRows; ++row) {
        if (placeAt(row) == place) {
            selectRow(row);
            scrollToItem(item(row, columnNumber));
        }
    }
}

QString ToolGrid::sortText(int column) const {
    return horizontalHeaderItem(column)->text();
}

void ToolGrid::setSortText(int column, const QString& text) {
    horizontalHeaderItem(column)->setText(text);
}

// Of the types in the list; a very long one is cut short.
int ToolGrid::widestType() const {
    int widest = 0;
    for (int row = 0; row < gintToolRows; ++row)
        widest = std::max(widest, fontMetrics().horizontalAdvance(item(row, columnType)->text()));
    return std::min(widest + typeMargins, longestType * fontMetrics().averageCharWidth());
}

void ToolGrid::fitSize(const std::array<int, shownColumns>& leastWidths) {
    const int line = fontMetrics().height();
    constexpr int gridLine = 1;
    verticalHeader()->setDefaultSectionSize(std::max(line + 8, leastTarget + gridLine));
    horizontalHeader()->setFixedHeight(line + 12);
    int width = borders;
    for (int column = 0; column < shownColumns; ++column) {
        const char* const text = headerTexts[static_cast<std::size_t>(column)];
        setColumnWidth(column, std::max({fontMetrics().horizontalAdvance(QString::fromUtf8(text)),
                                         leastWidths[static_cast<std::size_t>(column)],
                                         column == columnType ? widestType() : 0}));
        width += columnWidth(column);
    }
    if (gintToolRows > shownRows)
        width += scrollBarRoom;
    setFixedSize(width, horizontalHeader()->height() +
                            shownRows * verticalHeader()->defaultSectionSize() + borders);
}

void ToolGrid::paintEvent(QPaintEvent* event) {
    QTableWidget::paintEvent(event);
    if (gintToolRows > 0)
        return;
    QPainter painter(viewport());
    const QRect place = viewport()->rect();
    painter.fillRect(place, palette().base());
    painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap, noToolsText());
}

void ToolGrid::focusInEvent(QFocusEvent* event) {
    QTableWidget::focusInEvent(event);
    // The library makes the first row current but not selected; an arrow key would pass it over.
    if (selectedRow() < 0)
        selectionModel()->clearCurrentIndex();
}

void ToolGrid::selectToolRow(int row) {
    if (row < 0 || row >= gintToolRows)
        return;
    setCurrentCell(row, columnNumber);
    scrollToItem(item(row, columnNumber));
}

void ToolGrid::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Home:
        selectToolRow(0);
        break;
    case Qt::Key_End:
        selectToolRow(gintToolRows - 1);
        break;
    case Qt::Key_F2:
        emit editWanted();
        break;
    case Qt::Key_Delete:
        emit deletionWanted();
        break;
    default:
        QTableWidget::keyPressEvent(event);
    }
}

void ToolGrid::keyboardSearch(const QString& typed) {
    if (!m_sinceTyped.isValid() || m_sinceTyped.hasExpired(QApplication::keyboardInputInterval()))
        m_typed.clear();
    m_sinceTyped.start();
    m_typed += typed;
    int found = -1;
    for (int row = gintToolRows - 1; row >= 0; --row) {
        const QString number = item(row, columnNumber)->text();
        if (number == m_typed) {
            found = row;
            break;
        }
        if (number.startsWith(m_typed))
            found = row;
    }
    selectToolRow(found);
}

void ToolDataShow(ToolGrid& grid, const ToolList& tools, Logger& logger) {
    withErrorTrap(logger, {"ToolDataShow", module}, [&] {
        grid.clearTools();
        for (int place = 1; place <= tools.gintToolCount; ++place) {
            const Tool& tool = tools.gudtTools[place];
            grid.appendTool(QString::number(tool.intNumber), tool, toInt16(place));
        }
        if (grid.gintToolRows >= 2) {
            grid.gintSortColumn = sortedByNone;
            GridSort(grid, columnNumber, logger);
        }
    });
}

void GridSort(ToolGrid& grid, std::int16_t column, Logger& logger) {
    withErrorTrap(logger, {"GridSort", module}, [&] {
        const std::int16_t selected = grid.placeAt(grid.selectedRow());
        const QString ascending = QStringLiteral("Asc");
        const bool turns = column == grid.gintSortColumn && grid.sortText(column) == ascending;
        grid.setSortText(column, turns ? QStringLiteral("Desc") : ascending);
        grid.gintSortColumn = column;
        // Empty rows have no cells and stay behind the others.
        grid.sortItems(column, turns ? Qt::DescendingOrder : Qt::AscendingOrder);
        grid.selectPlace(selected);
        if (grid.isEnabled() && grid.isVisible())
            grid.setFocus();
        emit grid.sorted();
    });
}

} // namespace torvik
