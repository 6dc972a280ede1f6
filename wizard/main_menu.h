// SPDX-License-Identifier: MIT
// The main window's menu: File with the recent drawings, View and Help.
#pragma once

#include <QObject>

class QMenu;
class QMenuBar;
class QWidget;

namespace torvik {

class FrmMain;
class StdMessageBox;

class MainMenu : public QObject {
    Q_OBJECT

public:
    // Fills the window's menu bar; View shows and hides the tree.
    MainMenu(FrmMain& window, QWidget& tree, StdMessageBox& messages);

private:
    void buildFile();
    void buildView(QWidget& tree, StdMessageBox& messages);
    void buildHelp();
    void fillRecent();

    FrmMain& m_window;
    QMenuBar& m_bar;
    QMenu* m_recent = nullptr;
};

} // namespace torvik
