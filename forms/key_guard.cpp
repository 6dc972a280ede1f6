// SPDX-License-Identifier: MIT
#include "forms/key_guard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QKeyEvent>

namespace torvik {
namespace {

KeyGuard::Clock systemClock() {
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

// Whether the key would press a button where the focus is. Space does so on a button alone.
bool canPressButton(int key) {
    switch (key) {
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Escape:
        return true;
    case Qt::Key_Space:
        return qobject_cast<QAbstractButton*>(QApplication::focusWidget()) != nullptr;
    default:
        return false;
    }
}

} // namespace

KeyGuard::KeyGuard(Clock clock) : m_clock(clock ? std::move(clock) : systemClock()) {
    goFirst();
}

void KeyGuard::goFirst() {
    qApp->installEventFilter(this); // the last one is asked first
}

bool KeyGuard::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Show:
        if (auto* const dialog = qobject_cast<QDialog*>(watched)) {
            m_dialog = dialog;
            m_shown = m_clock();
        }
        return false;
    case QEvent::KeyRelease: {
        const auto& release = *static_cast<QKeyEvent*>(event);
        m_released[release.key()] = release.timestamp();
        return false;
    }
    case QEvent::KeyPress:
        return isHeldBack(*static_cast<QKeyEvent*>(event));
    default:
        return false;
    }
}

bool KeyGuard::isHeldBack(const QKeyEvent& press) const {
    return canPressButton(press.key()) && (isRepeat(press) || isDialogNew());
}

bool KeyGuard::isRepeat(const QKeyEvent& press) const {
    if (press.isAutoRepeat())
        return true;
    const quint64 released = m_released.value(press.key()); // 0: never, or an event without a time
    return released != 0 && press.timestamp() >= released &&
           press.timestamp() - released <= quint64{repeatTime};
}

bool KeyGuard::isDialogNew() const {
    return m_dialog != nullptr && m_dialog == QApplication::activeModalWidget() &&
           m_clock() - m_shown < dialogTime;
}

} // namespace torvik
