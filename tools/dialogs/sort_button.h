// SPDX-License-Identifier: MIT
// cmdSort0 to cmdSort2: a button over one header cell of the tool grid. It looks like the header
// and shows the direction of the column that the grid is sorted by.
#pragma once

#include <QPushButton>

namespace torvik {

class ToolGrid;

class SortButton : public QPushButton {
    Q_OBJECT

public:
    // Lies on the grid, over its column 0 to 2.
    SortButton(ToolGrid& grid, int column);

    // Takes the place of the header cell.
    void cover();

signals:
    void focused();

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void showDirection();
    bool isDescending() const;

    ToolGrid& m_grid;
    int m_column;
};

} // namespace torvik
