// SPDX-License-Identifier: MIT
// frmMenu: what to do after a program was written.
#pragma once

#include <QDialog>

#include <string>

namespace torvik {

class FrmMenu : public QDialog {
    Q_OBJECT

public:
    // takingOut: of takingOutText. minutes: "about 12 min", empty where it is not known. folder:
    // where the file stands.
    FrmMenu(const QString& writtenFile, const QString& takingOut, const QString& minutes,
            const QString& folder, QWidget* parent = nullptr);

    // "Open", "Save", "Close", or empty where the menu was closed without a choice.
    std::string tag() const;
};

} // namespace torvik
