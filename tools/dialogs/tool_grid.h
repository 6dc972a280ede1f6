// SPDX-License-Identifier: MIT
// grdTools: the tools as rows of a table; diameters in millimetres. The hidden last column leads
// from a row back to the tool's place in the list. The header cells hold "Asc" or "Desc", the
// direction in which their column was sorted last; the sort buttons lie over them.
#pragma once

#include "base/logger.h"
#include "tools/tool_list.h"

#include <QElapsedTimer>
#include <QTableWidget>

#include <array>
#include <cstdint>

namespace torvik {

inline constexpr int columnNumber = 0;
inline constexpr int columnType = 1;
inline constexpr int columnDiameter = 2;
inline constexpr int columnPlace = 3;
inline constexpr int shownColumns = 3;
inline constexpr int shownRows = 8;
inline constexpr std::int16_t sortedByNone = 3;

// What stands in the header; the blanks make the columns' widths.
inline constexpr std::array<const char*, shownColumns> headerTexts{
    "  Tool Number  ", "    Tool Type    ", "  Tool Diameter (mm)  "};

class ToolGrid : public QTableWidget {
    Q_OBJECT

public:
    explicit ToolGrid(QWidget* parent = nullptr);

    // Empties every cell and goes back to the rows that are always there.
    void clearTools();
    // Fills the first empty row (appending one where there is none) and returns it.
    int appendTool(const QString& number, const Tool& tool, std::int16_t place);
    // A record that could not be read is shown as it is stored, and that it "cannot be read".
    void setTool(int row, const QString& number, const Tool& tool);

    // The selected row, -1 where none is selected.
    int selectedRow() const;
    // The tool's place that a row leads to, 0 for an empty row.
    std::int16_t placeAt(int row) const;
    // Selects the row that leads to the place and scrolls to it; none for place 0.
    void selectPlace(std::int16_t place);
    // "Asc" or "Desc", empty where the column was not sorted yet.
    QString sortText(int column) const;
    void setSortText(int column, const QString& text);

    // Width and height for all columns and eight rows, with room for the scroll bar where there
    // are more tools. No column is narrower than what its sort button takes (pixels).
    void fitSize(const std::array<int, shownColumns>& leastWidths);

    std::int16_t gintToolRows = 0; // rows that hold a tool, the first ones
    std::int16_t gintSortColumn = sortedByNone;

    // Selects the tool whose number is what was typed lately, else one that begins so.
    void keyboardSearch(const QString& typed) override;

signals:
    void sorted();
    // F2 and the Delete key.
    void editWanted();
    void deletionWanted();

protected:
    void focusInEvent(QFocusEvent* event) override;
    // An empty list says how the first tool comes into it.
    void paintEvent(QPaintEvent* event) override;
    // Home and End lead to the first and the last tool.
    void keyPressEvent(QKeyEvent* event) override;

private:
    static QString noToolsText();
    int widestType() const;
    void selectToolRow(int row);

    QString m_typed;
    QElapsedTimer m_sinceTyped;
};

// Fills the grid with the tools and sorts them by number, ascending.
void ToolDataShow(ToolGrid& grid, const ToolList& tools, Logger& logger);

// Sorts by a shown column: ascending, or the other way round where it was sorted by last. Numbers
// sort as numbers, types as case-sensitive text; the selected tool stays selected.
void GridSort(ToolGrid& grid, std::int16_t column, Logger& logger);

} // namespace torvik
