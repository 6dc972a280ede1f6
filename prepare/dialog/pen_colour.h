// SPDX-License-Identifier: MIT
// The colours and names of the pens as the main window shows them.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

class QComboBox;

namespace torvik {

// Of pens 1 to 8; others are grey.
QColor penColour(int pen);
// "1 Black"; empty for a pen that a job does not have.
QString penName(int pen);

// Adds pens 1 to 8 with their colours; each item's data is its number.
void addPens(QComboBox& box);

// A square of the colour, framed, for lists.
QPixmap colourSwatch(const QColor& colour);

} // namespace torvik
