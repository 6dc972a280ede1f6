// SPDX-License-Identifier: MIT
// Work that waits until the running event has ended: a dialog never opens inside one.
#pragma once

#include <QApplication>
#include <QTimer>

namespace torvik {

// Runs the work when the running event has ended, as long as `owner` lives. What is asked for
// while a dialog waits already (a second click, a drop) is passed over.
template <typename Work>
void later(QObject& owner, Work work) {
    QTimer::singleShot(0, &owner, [work = std::move(work)] {
        if (QApplication::activeModalWidget() == nullptr)
            work();
    });
}

} // namespace torvik
