// SPDX-License-Identifier: MIT
#include "convert/converter.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("torvik-convert"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TORVIK_VERSION));
    return torvik::runConverter(QCoreApplication::arguments(), std::cout, std::cerr);
}
