// SPDX-License-Identifier: MIT
#include "app/message_window.h"

#include <QApplication>
#include <QMessageBox>

namespace torvik {
namespace {

// A style is the sum of its buttons (0 OK, 4 Yes and No, 5 Retry and Cancel), its icon (32
// question, 48 exclamation) and its default button (256: the second).
constexpr int buttonsYesNo = 4;
constexpr int buttonsRetryCancel = 5;
constexpr int iconQuestion = 32;
constexpr int iconExclamation = 48;
constexpr int defaultSecond = 256;

QMessageBox::StandardButtons buttonsOf(int style) {
    switch (style & 7) {
    case buttonsYesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case buttonsRetryCancel:
        return QMessageBox::Retry | QMessageBox::Cancel;
    default:
        return QMessageBox::Ok;
    }
}

QMessageBox::Icon iconOf(int style) {
    switch (style & 0x70) {
    case iconExclamation:
        return QMessageBox::Warning;
    case iconQuestion:
        return QMessageBox::Question;
    default:
        // A Yes/No question keeps its icon where only its default button was asked for.
        return (style & 7) == buttonsYesNo ? QMessageBox::Question : QMessageBox::NoIcon;
    }
}

int pressed(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return buttonYes;
    case QMessageBox::No:
        return buttonNo;
    case QMessageBox::Retry:
        return buttonRetry;
    case QMessageBox::Ok:
        return buttonOk;
    default:
        return buttonCancel;
    }
}

} // namespace

int MessageWindow::intStdMsgBox(const std::string& text, int style, const std::string& title) {
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("msgBox"));
    box.setWindowTitle(QString::fromStdString(title));
    box.setText(QString::fromStdString(text));
    box.setIcon(iconOf(style));
    box.setStandardButtons(buttonsOf(style));
    const bool second = (style & defaultSecond) != 0;
    switch (style & 7) {
    case buttonsYesNo:
        box.setDefaultButton(second ? QMessageBox::No : QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::No);
        break;
    case buttonsRetryCancel:
        box.setDefaultButton(second ? QMessageBox::Cancel : QMessageBox::Retry);
        box.setEscapeButton(QMessageBox::Cancel);
        break;
    default:
        box.setDefaultButton(QMessageBox::Ok);
    }
    return pressed(box.exec());
}

} // namespace torvik
