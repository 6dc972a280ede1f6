// SPDX-License-Identifier: MIT
// torvik-bench-window: shows a window of the toolkit with nothing in it, which the start of the
// desktop program is measured beside.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Torvik"));
    window.resize(QSize(1024, 768));
    window.show();
    return QApplication::exec();
}
