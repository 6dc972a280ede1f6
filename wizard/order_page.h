// SPDX-License-Identifier: MIT
// Step 4: the order in which the pens are machined, as rows that buttons, arrow keys and the mouse
// move.
#pragma once

#include <QWidget>

#include <cstdint>

class QToolButton;

namespace torvik {

struct Workshop;

class OrderPage : public QWidget {
    Q_OBJECT

public:
    explicit OrderPage(Workshop& workshop, QWidget* parent = nullptr);

    // Builds the rows from the order list, which is rebuilt from the pens while gblnOrderSet is
    // clear, and selects row 1. Callers pass 1.
    void ShowOrder(std::int16_t direction);
    // Selects the row (from 1) that shows the pen.
    void ListItemClicked(std::int16_t row, std::int16_t pen);
    // Moves the selected row one place, -1 up or 1 down; nothing where there is no such place.
    void ColourReOrder(std::int16_t step);
    // Arrow up (38) and down (40) press cmdUp and cmdDown where they are enabled; only on step 4.
    // Whether the key was used.
    bool KeyCheck(int keyCode);

    // The rows as they stand, into gintOrder; gblnOrderSet is then set.
    void readOrder();
};

} // namespace torvik
