// SPDX-License-Identifier: MIT
#include "app/start_up.h"
#include "base/library_places.h"
#include "base/stop_signals.h"
#include "base/user_folders.h"
#include "sheet/command/sheet_command.h"

#include <QApplication>

#include <iostream>

namespace {

// Needs no screen: only the fonts of a toolkit.
int runWithoutWindow(int argc, char** argv) {
    if (torvik::environmentText("QT_QPA_PLATFORM").empty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return torvik::runSheetCommand({argv, argv + argc}, std::cout, std::cerr);
}

} // namespace

int main(int argc, char** argv) {
    torvik::loadOnlyOwnLibraries();
    torvik::tidyUpWhenStopped();
    if (torvik::isSheetCommand({argv, argv + argc}))
        return runWithoutWindow(argc, argv);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Torvik"));
    QApplication::setApplicationVersion(QStringLiteral(TORVIK_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("torvik"));
    // Help stays open on its own; the main window alone ends the program.
    QApplication::setQuitOnLastWindowClosed(false);
    // The one word that it takes is the drawing that was double-clicked.
    return torvik::runDesktop(QApplication::arguments().value(1));
}
