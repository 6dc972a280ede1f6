// SPDX-License-Identifier: MIT
#include "base/large_pages.h"
#include "base/library_places.h"
#include "base/stop_signals.h"
#include "prepare/command/preparer.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv) {
    torvik::loadOnlyOwnLibraries();
    torvik::takeHeapInLargePages();
    torvik::tidyUpWhenStopped();
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("torvik-prepare"));
    return torvik::runPreparer(QCoreApplication::arguments(), std::cout, std::cerr);
}
