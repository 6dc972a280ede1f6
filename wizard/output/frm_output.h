// SPDX-License-Identifier: MIT
// frmOutput: asks for the number of a program that goes to the diskette. The box takes digits only.
#pragma once

#include <QDialog>

#include <string>

class QPushButton;

namespace torvik {

struct Dialect;
class NumberBox;

class FrmOutput : public QDialog {
    Q_OBJECT

public:
    explicit FrmOutput(const Dialect& dialect, QWidget* parent = nullptr);

    // The text as typed; empty when the dialog was cancelled or closed.
    std::string tag() const;

private:
    NumberBox* m_number;
    QPushButton* m_ok;
};

} // namespace torvik
