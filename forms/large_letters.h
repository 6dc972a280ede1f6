// SPDX-License-Identifier: MIT
#pragma once

#include <QScreen>
#include <QWidget>

namespace torvik {

// Whether the screen has room for few letters in a line: those of a screen of 1024 by 768 on which
// all or the letters are shown twice as large. Forms then put below one another what stands side by
// side.
inline bool hasLargeLetters(const QWidget& form) {
    constexpr int fewLetters = 80;
    return form.screen()->availableSize().width() <
           fewLetters * form.fontMetrics().averageCharWidth();
}

} // namespace torvik
