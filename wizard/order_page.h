// SPDX-License-Identifier: MIT
// Step 4: the order in which the pens are machined, as rows that buttons, arrow keys and the mouse
// move.
#pragma once

#include <QWidget>

#include <cstdint>
#include <vector>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace torvik {

class QuietLine;
struct Answers;
struct Workshop;

class OrderPage : public QWidget {
    Q_OBJECT

public:
    explicit OrderPage(Workshop& workshop, QWidget* parent = nullptr);

    // Builds the rows from the order list, which is rebuilt from the pens while gblnOrderSet is
    // clear, and selects row 1, which gets the focus on the way forward (1).
    void ShowOrder(std::int16_t direction);
    // Selects the row (from 1) that shows the pen.
    void ListItemClicked(std::int16_t row, std::int16_t pen);
    // Moves the selected row one place, -1 up or 1 down; nothing where there is no such place.
    void ColourReOrder(std::int16_t step);
    // Arrow up (38) and down (40) press cmdUp and cmdDown where they are enabled; only on step 4.
    void KeyCheck(int keyCode);

    // The rows as they stand, into gintOrder; gblnOrderSet is then set.
    void readOrder();
    // The same into answers that are only looked at.
    void storeTyped(Answers& answers) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // One row: picOrd and lblOrd, whose property "Tag" holds the pen's number as text, and beside
    // it how the pen is machined.
    struct Row {
        QWidget* frame;
        QLabel* picOrd;
        QLabel* lblOrd;
        QLabel* lblOrdWork;
    };

    QWidget* buildList();
    QWidget* buildButtons();
    void addRow(std::int16_t pen);
    void showPen(const Row& row, std::int16_t pen);
    void sayRow(const Row& row) const;
    void placeRowsInTabOrder();
    // Below the rows: the tool changes, and what makes no sense in this order.
    void sayOrder();
    void highlight(std::int16_t row, bool selected);
    // The row that shows the widget, 0 for none; the row at a height of the list.
    std::int16_t rowOf(const QObject* widget) const;
    std::int16_t rowAt(int y) const;
    void select(std::int16_t row);
    void dragTo(int y);

    Workshop& m_workshop;
    QWidget* m_list = nullptr;
    QuietLine* m_quiet = nullptr;
    QVBoxLayout* m_rowsLayout = nullptr;
    QPushButton* m_up = nullptr;
    QPushButton* m_down = nullptr;
    std::vector<Row> m_rows; // row 1 is the first
    std::int16_t m_selectedRow = 0;
    std::int16_t m_selectedPen = 0;
};

} // namespace torvik
