// SPDX-License-Identifier: MIT
// The main program of tests that use widgets: one QApplication, no screen needed, and every warning
// of Qt fails the test that raised it.
#include <QApplication>

#include <gtest/gtest.h>

namespace {

void failAtWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
    // What the platform without a screen cannot do says nothing about the program.
    const bool platform = message.startsWith("This plugin does not support");
    if (type == QtDebugMsg || type == QtInfoMsg || platform)
        return;
    ADD_FAILURE() << "Qt: " << message.toStdString();
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    qInstallMessageHandler(failAtWarning); // behind what Qt says about the machine at the start
    return RUN_ALL_TESTS();
}
