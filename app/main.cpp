// SPDX-License-Identifier: MIT
#include "app/start_up.h"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Torvik"));
    QApplication::setApplicationVersion(QStringLiteral(TORVIK_VERSION));
    // Help stays open on its own; the main window alone ends the program.
    QApplication::setQuitOnLastWindowClosed(false);
    return torvik::runDesktop();
}
