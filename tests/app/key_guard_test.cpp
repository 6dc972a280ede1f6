// SPDX-License-Identifier: MIT
#include "forms/key_guard.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

#include <gtest/gtest.h>

namespace torvik {
namespace {

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

constexpr quint64 never = 1000;

TEST(KeyGuard, HoldsBackRepeatsAndKeysForDialogsJustShown) {
    const struct {
        const char* says;
        int key;
        qint64 afterShow;
        quint64 sinceRelease; // the press is at 1000
        bool repeat, arrives;
    } rows[] = {
        {"a fresh Enter in a dialog seen for long", Qt::Key_Enter, 300, never, false, true},
        {"one just before the time is over", Qt::Key_Enter, 299, never, false, false},
        {"Return in a dialog just shown", Qt::Key_Return, 0, never, false, false},
        {"Escape in a dialog just shown", Qt::Key_Escape, 10, never, false, false},
        {"Space in a dialog just shown", Qt::Key_Space, 10, never, false, false},
        {"a letter in a dialog just shown", Qt::Key_Y, 0, never, false, true},
        {"a repeat that is marked", Qt::Key_Return, 900, never, true, false},
        {"a repeated arrow", Qt::Key_Down, 900, never, true, true},
        {"a press with its own release", Qt::Key_Escape, 900, 0, false, false},
        {"a press 5 ms after the release", Qt::Key_Enter, 900, 5, false, false},
        {"a press 6 ms after the release", Qt::Key_Enter, 900, 6, false, true},
    };
    for (const auto& row : rows) {
        qint64 now = 50;
        const KeyGuard guard([&now] { return now; });
        QDialog dialog;
        dialog.setModal(true);
        Button button(&dialog);
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        button.setFocus();
        now += row.afterShow;
        if (row.sinceRelease != never)
            send(button, QEvent::KeyRelease, row.key, 1000 - row.sinceRelease, false);
        send(button, QEvent::KeyPress, row.key, 1000, row.repeat);
        EXPECT_EQ(button.arrived, row.arrives) << row.says;
    }
}

} // namespace
} // namespace torvik
