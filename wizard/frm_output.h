// SPDX-License-Identifier: MIT
// frmOutput: asks for the number of a program that goes to the diskette.
#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;

namespace torvik {

struct Dialect;

class FrmOutput : public QDialog {
    Q_OBJECT

public:
    explicit FrmOutput(const Dialect& dialect, QWidget* parent = nullptr);

    // The text as typed; empty when the dialog was cancelled or closed.
    QString result() const { return m_result; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* m_number;
    QPushButton* m_ok;
    QString m_result;
};

} // namespace torvik
