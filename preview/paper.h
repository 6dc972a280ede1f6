// SPDX-License-Identifier: MIT
// Ink on paper, whatever the theme: the palettes of what shows drawings and pieces.
#pragma once

#include <QPalette>

namespace torvik {

inline QPalette paperWith(const QColor& ink) {
    QPalette palette(Qt::white);
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Text, QColor(0x30, 0x30, 0x30));
    return palette;
}

inline QPalette paper() {
    return paperWith({0x30, 0x30, 0x30});
}

inline QPalette quietPaper() {
    return paperWith({0x70, 0x70, 0x70});
}

} // namespace torvik
