// SPDX-License-Identifier: MIT
// A short hint about what was typed into a box.
#pragma once

#include <QToolTip>
#include <QWidget>

namespace torvik {

// Shows it beside the box, where no other box is covered; the system moves tips down by about a
// line.
inline void showHintBeside(QWidget& box, const QString& text) {
    QToolTip::showText(box.mapToGlobal(QPoint(box.width(), -box.height() / 2)), text, &box);
}

} // namespace torvik
