// SPDX-License-Identifier: MIT
#include "app/start_up.h"
#include "base/stop_signals.h"

#include <QApplication>

int main(int argc, char** argv) {
    torvik::tidyUpWhenStopped();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Torvik"));
    QApplication::setApplicationVersion(QStringLiteral(TORVIK_VERSION));
    // Help stays open on its own; the main window alone ends the program.
    QApplication::setQuitOnLastWindowClosed(false);
    // The one word that it takes is the drawing that was double-clicked.
    return torvik::runDesktop(QApplication::arguments().value(1));
}
