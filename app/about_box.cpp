// SPDX-License-Identifier: MIT
#include "app/about_box.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace torvik {

void showAboutBox(QWidget* parent) {
    QMessageBox box(parent);
    box.setObjectName(QStringLiteral("frmAbout"));
    box.setWindowTitle(QObject::tr("About Torvik"));
    box.setIconPixmap(QApplication::windowIcon().pixmap(64, 64));
    box.setTextFormat(Qt::RichText);
    box.setText(QObject::tr("<b>Torvik %1</b>").arg(QApplication::applicationVersion()));
    box.setInformativeText(
        QObject::tr("From a pen-plotter drawing to a program for the milling machine.\n\n"
                    "Free software under the MIT licence. Built with Qt %1.\n\n"
                    "The Hershey Fonts, which texts of drawings are cut with, were originally "
                    "created by Dr. A. V. Hershey while working at the U. S. National Bureau of "
                    "Standards. The format of the font data was originally created by James Hurt, "
                    "Cognition, Inc.")
            .arg(QString::fromUtf8(qVersion())));
    box.setStandardButtons(QMessageBox::Ok);
    box.button(QMessageBox::Ok)->setObjectName(QStringLiteral("cmdOk"));
    box.exec();
}

} // namespace torvik
