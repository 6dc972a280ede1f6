// SPDX-License-Identifier: MIT
// In which order a screen reader comes by what stands beside one another.
#pragma once

#include <QSplitter>

namespace torvik {

// From left to right or from top to bottom: a splitter keeps its parts the other way round.
inline void readInOrder(const QSplitter& splitter) {
    for (int i = 0; i < splitter.count(); ++i)
        splitter.widget(i)->raise();
}

} // namespace torvik
