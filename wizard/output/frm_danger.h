// SPDX-License-Identifier: MIT
// frmDanger: asks once more before a program is written that is dangerous, or that does not do what
// was asked for. Going back is what Enter and Escape do.
#pragma once

#include <QDialog>

namespace torvik {

class FrmDanger : public QDialog {
    Q_OBJECT

public:
    // Accepted where the program is to be written all the same.
    explicit FrmDanger(const QStringList& findings, QWidget* parent = nullptr);
};

} // namespace torvik
