// SPDX-License-Identifier: MIT
#include "app/single_instance.h"
#include "app/start_up.h"
#include "base/user_folders.h"
#include "tests/app/app_fixture.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <functional>

namespace torvik {
namespace {

QMainWindow* mainWindow() {
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (window->objectName() == "frmMain" && window->isVisible())
            return qobject_cast<QMainWindow*>(window);
    return nullptr;
}

class StartUpTest : public AppTest {
protected:
    // Runs the program; does the work when it has started.
    static int run(const std::function<void()>& work, const QString& drawing = {}) {
        QTimer::singleShot(0, qApp, work);
        return runDesktop(drawing);
    }
};

TEST_F(StartUpTest, OpensTheDrawingThatItIsStartedWith) {
    run(
        [] {
            QTimer::singleShot(0, qApp, [] { // behind the opening
                EXPECT_TRUE(mainWindow()->windowTitle().endsWith("gear.plt"));
                EXPECT_TRUE(mainWindow()->findChild<QPushButton*>("cmdBack")->isVisible());
                QTimer::singleShot(0, qApp, [] { // whether to close without saving
                    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                    ASSERT_NE(box, nullptr);
                    box->button(QMessageBox::Yes)->click();
                });
                mainWindow()->close();
            });
        },
        QStringLiteral(TORVIK_SAMPLES "/gear.plt"));
}

TEST_F(StartUpTest, HeldKeysAndTipsAreTamedAndExitEndsTheProgramWithOpenHelpToo) {
    EXPECT_EQ(run([] {
                  auto& start = *mainWindow()->findChild<QPushButton*>("cmdStart");
                  const QSignalSpy pressed(&start, &QPushButton::clicked);
                  QApplication::setActiveWindow(mainWindow());
                  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
                  QApplication::sendEvent(&start, &held); // not a step, whoever sees it
                  EXPECT_TRUE(start.hasFocus() && pressed.isEmpty());
                  QToolTip::showText({}, "tip");
                  EXPECT_TRUE(std::ranges::any_of(QApplication::topLevelWidgets(), [](auto* tip) {
                      return tip->inherits("QTipLabel") &&
                             tip->windowFlags().testFlag(Qt::WindowTransparentForInput);
                  }));
                  QTest::keyClick(mainWindow(), Qt::Key_F1);
                  mainWindow()->findChild<QAction*>("mnuFileExit")->trigger();
              }),
              0);
    for (const QWidget* const window : QApplication::topLevelWidgets())
        EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
}

// The program's own process may not wait for itself, so a second one holds the lock here and
// either answers or not.
TEST_F(StartUpTest, ASecondStartThatGetsNoAnswerSaysSoAndEnds) {
    ProcessLock held;
    ASSERT_EQ(held.tryLock(userRuntimeFolder() / instanceLockName), ProcessLock::Result::held);
    QString said;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            said = box->text();
            box->accept();
        }
    });
    answer.start(10);
    EXPECT_EQ(runDesktop(), 0);
    EXPECT_EQ(said, "Torvik cannot start as a previous instance is still running");
    EXPECT_EQ(mainWindow(), nullptr);
}

} // namespace
} // namespace torvik
