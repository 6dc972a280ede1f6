// SPDX-License-Identifier: MIT
#include "tests/tools/dialogs/tool_dialogs_fixture.h"
#include "tools/dialogs/tool_grid.h"

namespace torvik {
namespace {

class ToolGridTest : public ToolDialogsTest {
protected:
    void fill(const ToolList& list) { ToolDataShow(grid, list, logger); }
    // A column from top to bottom, "-" for an empty cell.
    std::string column(int at) {
        std::string all;
        for (int row = 0; row < grid.rowCount(); ++row) {
            const QTableWidgetItem* const cell = grid.item(row, at);
            all += (row == 0 ? "" : " ") + (cell == nullptr ? "-" : cell->text().toStdString());
        }
        return all;
    }
    std::string directions() {
        std::string all;
        for (int at = 0; at < shownColumns; ++at)
            all += grid.sortText(at).toStdString() + "/";
        return all;
    }

    ToolGrid grid;
};

TEST_F(ToolGridTest, IsFilledSortedByNumberAboveEmptyRows) {
    fill({{{10, "Drill", 6.25F}, {9, "End mill", 10}, {2, "Drill", 0.0005F}}, 3, {}, 0});
    EXPECT_EQ(column(columnNumber), "2 9 10 - - - - -");
    EXPECT_EQ(column(columnDiameter), "0.001 10.000 6.250 - - - - -");
    EXPECT_EQ(directions(), "Asc///");
    EXPECT_TRUE(grid.isColumnHidden(columnPlace));
    fill(drills(1));
    EXPECT_EQ(directions(), "///"); // one tool needs no sorting
}

TEST_F(ToolGridTest, EachHeaderKeepsItsDirection) {
    fill({{{1, "drill", 10}, {2, "Drill", 9}, {3, "Reamer", 10}, {4, "Drill", 100}}, 4, {}, 0});
    GridSort(grid, columnNumber, logger);
    EXPECT_EQ(column(columnNumber), "4 3 2 1 - - - -");
    EXPECT_EQ(directions(), "Desc///");
    GridSort(grid, columnType, logger); // capitals first; equal types stay as they were
    EXPECT_EQ(column(columnNumber), "4 2 3 1 - - - -");
    EXPECT_EQ(directions(), "Desc/Asc//");
    GridSort(grid, columnDiameter, logger);
    EXPECT_EQ(column(columnNumber), "2 3 1 4 - - - -");
    GridSort(grid, columnDiameter, logger);
    EXPECT_EQ(column(columnNumber), "4 3 1 2 - - - -");
    GridSort(grid, columnNumber, logger); // another column begins ascending
    EXPECT_EQ(column(columnNumber), "1 2 3 4 - - - -");
    EXPECT_EQ(directions(), "Asc/Asc/Desc/");
}

TEST_F(ToolGridTest, TheSelectedToolStaysSelectedAndInSight) {
    fill(drills(20));
    grid.fitSize({});
    open(grid);
    grid.selectRow(1);
    GridSort(grid, columnDiameter, logger);
    GridSort(grid, columnDiameter, logger);
    EXPECT_EQ(grid.selectedRow(), 18);
    EXPECT_EQ(grid.placeAt(18), 2);
    EXPECT_GT(grid.rowAt(0), 8);
    EXPECT_TRUE(grid.hasFocus());
    grid.selectPlace(0);
    GridSort(grid, columnNumber, logger);
    EXPECT_EQ(grid.selectedRow(), -1);
}

} // namespace
} // namespace torvik
