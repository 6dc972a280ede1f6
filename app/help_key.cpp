// SPDX-License-Identifier: MIT
#include "app/help_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace torvik {

HelpKey::HelpKey(std::function<void(const QWidget*)> show) : m_show(std::move(show)) {
    qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
    const QWidget* const control = QApplication::focusWidget();
    const QWidget* const dialog = QApplication::activeModalWidget();
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1 ||
        dialog == nullptr || watched != control || control->window() != dialog)
        return QObject::eventFilter(watched, event);
    m_show(control);
    return true;
}

} // namespace torvik
