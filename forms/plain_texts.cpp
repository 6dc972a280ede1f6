// SPDX-License-Identifier: MIT
#include "forms/plain_texts.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>

namespace torvik {

PlainTexts::PlainTexts() {
    qApp->installEventFilter(this);
}

// A label is polished before its text is laid out for the first time. The window of a tooltip and
// the texts of a message box are labels, too.
bool PlainTexts::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Polish) {
        auto* const label = qobject_cast<QLabel*>(watched);
        if (label != nullptr && label->textFormat() == Qt::AutoText)
            label->setTextFormat(Qt::PlainText);
    }
    return false;
}

} // namespace torvik
