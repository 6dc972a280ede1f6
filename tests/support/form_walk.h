// SPDX-License-Identifier: MIT
// What holds for every form: whoever has no mouse reaches each control, and whoever does not see it
// hears its name.
#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>
#include <set>

namespace torvik {

// Of what the form shows, no access key has two meanings.
inline void expectKeysUnique(QWidget& form) {
    std::set<QChar> keys;
    const auto take = [&](QString text) {
        const qsizetype at = text.replace("&&", "  ").indexOf('&');
        const bool isNew = at < 0 || keys.insert(text[at + 1].toUpper()).second;
        EXPECT_TRUE(isNew) << text.toStdString();
    };
    for (QWidget* const control : form.findChildren<QWidget*>()) {
        if (!control->isVisible())
            continue;
        if (const auto* const menus = qobject_cast<QMenuBar*>(control))
            for (const QAction* menu : menus->actions())
                take(menu->text());
        if (const auto* const button = qobject_cast<QAbstractButton*>(control))
            take(button->text());
        const auto* const caption = qobject_cast<QLabel*>(control);
        if (caption != nullptr && caption->buddy() != nullptr)
            take(caption->text());
        if (const auto* const tabs = qobject_cast<QTabBar*>(control))
            for (int i = 0; i < tabs->count(); ++i)
                take(tabs->tabText(i));
    }
}

// The same, and every control that the Tab key goes to has a name for the ear and an object name.
inline void expectReachable(QWidget& form) {
    expectKeysUnique(form);
    for (QWidget* const control : form.findChildren<QWidget*>()) {
        if (!control->isVisible() || control->objectName().startsWith("qt_"))
            continue;
        if ((control->focusPolicy() & Qt::TabFocus) == 0)
            continue;
        const std::string name = control->objectName().toStdString();
        EXPECT_NE(name, "") << control->metaObject()->className();
        const auto* const heard = QAccessible::queryAccessibleInterface(control);
        EXPECT_NE(heard->text(QAccessible::Name), "") << name;
    }
}

// The names of the controls that the Tab key goes to, from the one that has the focus until it
// comes to one again.
inline std::string tabOrder() {
    std::string order;
    while (QWidget* const focused = QApplication::focusWidget()) {
        const std::string name = focused->objectName().toStdString() + " ";
        if ((" " + order).find(" " + name) != std::string::npos)
            return order;
        order += name;
        QTest::keyClick(focused, Qt::Key_Tab);
    }
    return order + "(nothing)";
}

} // namespace torvik
