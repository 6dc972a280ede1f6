// SPDX-License-Identifier: MIT
// frmMenu: what to do after a program was written.
#pragma once

#include <QDialog>

#include <string>

namespace torvik {

class FrmMenu : public QDialog {
    Q_OBJECT

public:
    explicit FrmMenu(const QString& writtenFile, QWidget* parent = nullptr);

    // "Open", "Save", "Close", or empty where the menu was closed without a choice.
    std::string tag() const;
};

} // namespace torvik
