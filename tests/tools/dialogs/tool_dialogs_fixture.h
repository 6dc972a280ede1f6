// SPDX-License-Identifier: MIT
// The tool dialogs on a made-up workshop: tools and types in memory, a registry in memory, and a
// message box whose answer is given beforehand.
#pragma once

#include "base/logger.h"
#include "base/std_message_box.h"
#include "tests/tools/ini_registry.h"
#include "tools/tool_list.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <utility>
#include <vector>

namespace torvik {

class ScriptedMessages : public StdMessageBox {
public:
    int intStdMsgBox(const std::string& text, int style, const std::string& title) override {
        asked += title + "|" + std::to_string(style) + "|" + text;
        return answer;
    }
    std::string take() { return std::exchange(asked, {}); }

    std::string asked;
    int answer = buttonYes;
};

// Tools 1 to count, drills of as many millimetres.
inline ToolList drills(std::int16_t count) {
    ToolList list;
    while (list.gintToolCount < count) {
        const std::int16_t number = ++list.gintToolCount;
        list.gudtTools.append({number, "Drill", static_cast<float>(number)});
    }
    return list;
}

class ToolDialogsTest : public testing::Test {
protected:
    // A test that expects errors clears them.
    ~ToolDialogsTest() override { EXPECT_EQ(errors, std::vector<std::string>{}); }

    static void open(QWidget& window) {
        window.show();
        QApplication::setActiveWindow(&window);
    }
    template <typename Control>
    static Control& find(const QWidget& window, const char* name) {
        if (auto* const control = window.findChild<Control*>(QString::fromUtf8(name)))
            return *control;
        throw std::logic_error(std::string("no control ") + name);
    }
    static bool canPress(const QWidget& window, const char* name) {
        return find<QPushButton>(window, name).isEnabled();
    }
    static void press(const QWidget& window, const char* name) {
        QTest::mouseClick(&find<QPushButton>(window, name), Qt::LeftButton);
    }
    static std::string tag(const QWidget& window) {
        return window.property("Tag").toString().toStdString();
    }
    // Opens a modal dialog, and works in that one until it closes.
    template <typename Dialog>
    static void inDialogAfter(QWidget& window, const std::function<void(Dialog&)>& work,
                              const std::function<void()>& open) {
        bool opened = false;
        QTimer::singleShot(0, &window, [&] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            opened = dialog != nullptr;
            if (!opened)
                return;
            QApplication::setActiveWindow(dialog);
            work(*dialog);
            EXPECT_FALSE(dialog->isVisible()) << "the dialog was left open";
            dialog->close();
        });
        open();
        EXPECT_TRUE(opened);
    }
    template <typename Dialog>
    static void inDialog(QWidget& window, const char* opener,
                         const std::function<void(Dialog&)>& work) {
        inDialogAfter<Dialog>(window, work, [&] { press(window, opener); });
    }

    ScriptedMessages messages;
    IniRegistry registry;
    std::vector<std::string> errors;
    Logger logger{{}, [this](const ErrorReport& report) { errors.push_back(report.message()); }};
    ToolList tools;
};

} // namespace torvik
