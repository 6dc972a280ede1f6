// SPDX-License-Identifier: MIT
// The main window in a home of its own: settings, answers and drawings in a temporary folder, the
// registry in memory, messages and dialogs answered beforehand.
#pragma once

#include "tests/base/temporary_folder.h"
#include "tests/support/form_walk.h"
#include "tests/tools/ini_registry.h"
#include "tests/wizard/pens/pen_page_fixture.h"
#include "tools/tool_store.h"
#include "wizard/frm_main.h"

#include <QDialog>
#include <QLineEdit>
#include <QSettings>

#include <functional>
#include <optional>

namespace torvik {

// Answers modal dialogs in the order in which they are expected; any other one fails the test.
class DialogAnswers : public QObject {
public:
    using Answer = std::function<void(QDialog&)>;

    DialogAnswers() { look(); }
    void expect(const char* name, Answer answer) {
        m_answers.emplace_back(name, std::move(answer));
    }
    std::size_t open() const { return m_answers.size(); }

    static void cancel(QDialog& dialog) { dialog.reject(); }
    static Answer press(const char* button) {
        return [button](QDialog& dialog) {
            QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
        };
    }
    static Answer file(const std::filesystem::path& name) {
        return [name](QDialog& dialog) {
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(name.c_str());
            dialog.accept();
        };
    }
    static Answer number(const std::string& typed) {
        return [typed](QDialog& dialog) {
            QTest::keyClicks(dialog.focusWidget(), typed.c_str());
            press("cmdOk")(dialog);
        };
    }

private:
    void look() {
        QTimer::singleShot(2, this, [this] {
            look();
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || !dialog->isVisible() || dialog == m_answering)
                return;
            if (m_answers.empty()) {
                ADD_FAILURE() << "nobody expects " << dialog->objectName().toStdString();
                dialog->reject();
                return;
            }
            const auto [name, answer] = m_answers.front();
            m_answers.pop_front();
            EXPECT_EQ(dialog->objectName().toStdString(), name);
            if (name.starts_with("frm"))
                expectReachable(*dialog);
            QApplication::setActiveWindow(dialog);
            m_answering = dialog;
            answer(*dialog);
            m_answering = nullptr;
        });
    }

    std::deque<std::pair<std::string, Answer>> m_answers;
    const QDialog* m_answering = nullptr;
};

class MainWindowTest : public testing::Test {
protected:
    MainWindowTest() {
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "TORVIK_HOME"})
            setenv(name, folder.path().c_str(), 1);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path().c_str());
        for (const char* setting : {"PLT File Path", "CNC File Path", "Kestra File Path"})
            registry.RegistryValuePut(setting, folder.path().string());
        workshop.tools.gudtTools = {{7, "Slot drill", 6}, {3, "Drill", 3}, {4, "Drill", 5}};
        workshop.tools.gintToolCount = 3;
    }
    ~MainWindowTest() override {
        EXPECT_EQ(messages.take(), "");
        EXPECT_EQ(errors, std::vector<std::string>{});
        EXPECT_EQ(answers.open(), 0U) << "dialogs that never opened";
    }

    void start() {
        window.emplace(workshop, FrameServices{[this](int topic) { topics.push_back(topic); },
                                               [] {}, [this] { ++shutdowns; }});
        window->show();
        settle();
    }
    // What was asked for runs when its event has ended, dialogs included. No window manager gives
    // the window back what a dialog took.
    void settle() {
        for (int i = 0; i < 4; ++i)
            QApplication::processEvents();
        if (QApplication::activeModalWidget() == nullptr)
            QApplication::setActiveWindow(&*window);
    }

    // Starts on a drawing of the repository with the answers and tools that belong to it.
    void startSample(const std::string& name) {
        const std::filesystem::path samples = TORVIK_SAMPLES;
        drawing = folder.path() / (name + ".plt");
        std::filesystem::copy_file(samples / (name + ".plt"), drawing);
        std::filesystem::create_directory(folder.path() / "PlotSave");
        std::filesystem::copy_file(samples / (name + ".plx"),
                                   folder.path() / "PlotSave" / (name + ".plx"));
        std::ifstream tools(samples / "Maskor.ini");
        const std::string text(std::istreambuf_iterator<char>(tools), {});
        const IniRegistry shared(text);
        ToolDataLoad(workshop.tools, shared, logger);
        start();
        open(drawing);
    }
    void startDrawing(const std::string& text = threePens) {
        drawing = folder.file("drawing.plt", text);
        start();
        open(drawing);
    }
    void open(const std::filesystem::path& name) {
        answers.expect("dlgOpen", DialogAnswers::file(name));
        window->Wizard(1);
        settle();
    }
    // Next until the step (and title of the pen page) is reached.
    void go(int step, const std::string& title = {}) {
        for (int i = 0; i < 30 && !(job.gintWizardStep == step &&
                                    label("lblDetTitle").find(title) != std::string::npos);
             ++i)
            click("cmdNext");
        ASSERT_EQ(job.gintWizardStep, step);
    }

    template <typename Control>
    Control& find(const std::string& name) {
        auto* const control = window->findChild<Control*>(name.c_str());
        if (control == nullptr)
            throw std::logic_error("no control " + name);
        return *control;
    }
    void click(const std::string& name) {
        QTest::mouseClick(&find<QAbstractButton>(name), Qt::LeftButton, {},
                          QPoint(8, find<QAbstractButton>(name).height() / 2));
        settle();
    }
    void key(Qt::Key which, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* const focused = QApplication::focusWidget();
        QTest::keyClick(focused == nullptr ? &*window : focused, which, modifiers);
        settle();
    }
    void type(const std::string& box, const char* text) {
        auto& edit = find<QLineEdit>(box);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }
    std::string text(const std::string& box) { return find<QLineEdit>(box).text().toStdString(); }
    // Without the places where it may break.
    std::string label(const std::string& name) {
        return find<QLabel>(name).text().remove(QChar(0x200B)).toStdString();
    }
    std::string focus() {
        const QWidget* const focused = QApplication::focusWidget();
        return focused == nullptr ? "none" : focused->objectName().toStdString();
    }
    std::string caption() { return window->windowTitle().toStdString(); }

    // The page on show and the buttons below it, in brackets where they are closed.
    std::string shown() {
        std::string text;
        for (const char* page :
             {"picOpening", "picGlobals", "picDetails", "picOrder", "picHeader", "picOutput"})
            text += find<QWidget>(page).isVisible() ? page : "";
        for (const char* name : {"cmdBack", "cmdNext", "cmdStart"}) {
            const QWidget& control = find<QWidget>(name);
            if (control.isVisible())
                text += std::string(control.isEnabled() ? " " : " -") + (name + 3);
        }
        return text;
    }

    TemporaryFolder folder;
    std::filesystem::path drawing;
    IniRegistry registry;
    ScriptedMessages messages;
    std::vector<std::string> errors;
    Logger logger{{}, [this](const ErrorReport& report) { errors.push_back(report.message()); }};
    Workshop workshop{registry, logger, messages};
    Job& job = workshop.job;
    DialogAnswers answers;
    std::vector<int> topics;
    int shutdowns = 0;
    std::optional<FrmMain> window;
};

} // namespace torvik
