// SPDX-License-Identifier: MIT
#include "forms/key_guard.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

#include <gtest/gtest.h>

namespace torvik {
namespace {

struct Press {
    const char* name;
    int key;
    quint64 released; // 0: never
    quint64 pressed;
    qint64 afterShow;
    bool repeat;
    bool arrives;
};

class Button : public QPushButton {
public:
    using QPushButton::QPushButton;
    bool arrived = false;

protected:
    void keyPressEvent(QKeyEvent*) override { arrived = true; }
};

void send(QWidget& to, QEvent::Type type, int key, quint64 time, bool repeat) {
    QKeyEvent event(type, key, Qt::NoModifier, {}, repeat);
    event.setTimestamp(time);
    QApplication::sendEvent(&to, &event);
}

TEST(KeyGuard, HoldsBackRepeatsAndKeysForDialogsJustShown) {
    constexpr Press presses[] = {
        {"a fresh Enter in a dialog seen for long", Qt::Key_Enter, 0, 1000, 300, false, true},
        {"one just before the time is over", Qt::Key_Enter, 0, 1000, 299, false, false},
        {"Return in a dialog just shown", Qt::Key_Return, 0, 1000, 0, false, false},
        {"Escape in a dialog just shown", Qt::Key_Escape, 0, 1000, 10, false, false},
        {"Space in a dialog just shown", Qt::Key_Space, 0, 1000, 10, false, false},
        {"a letter in a dialog just shown", Qt::Key_Y, 0, 1000, 0, false, true},
        {"a repeat that is marked", Qt::Key_Return, 0, 1000, 900, true, false},
        {"a repeated Space", Qt::Key_Space, 0, 1000, 900, true, false},
        {"a repeated arrow", Qt::Key_Down, 0, 1000, 900, true, true},
        {"a press with its own release", Qt::Key_Escape, 1000, 1000, 900, false, false},
        {"a press 5 ms after the release", Qt::Key_Enter, 995, 1000, 900, false, false},
        {"a press 6 ms after the release", Qt::Key_Enter, 994, 1000, 900, false, true},
    };
    for (const Press& row : presses) {
        SCOPED_TRACE(row.name);
        qint64 now = 50;
        const KeyGuard guard([&now] { return now; });
        QDialog dialog;
        dialog.setModal(true);
        Button button(&dialog);
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        button.setFocus();
        now += row.afterShow;
        if (row.released != 0)
            send(button, QEvent::KeyRelease, row.key, row.released, false);
        send(button, QEvent::KeyPress, row.key, row.pressed, row.repeat);
        EXPECT_EQ(button.arrived, row.arrives);
    }
}

} // namespace
} // namespace torvik
