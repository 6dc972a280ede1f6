// SPDX-License-Identifier: MIT
// "The piece": its picture and its solid on two tabs, the program's lines beside them, and below
// what plays the program. Both grow while it plays.
#pragma once

#include "preview/cut/cut_work.h"

#include <QDialog>

#include <memory>

class QTabWidget;

namespace torvik {

class CutPicture;
class PlayBar;
class ProgramList;
class SolidView;

class FrmCut : public QDialog {
    Q_OBJECT

public:
    // The work may still be under way; another picture may show it too.
    explicit FrmCut(std::shared_ptr<CutWork> work, QWidget* parent = nullptr);
    // Goes to a line of the program, from 1, as soon as the piece is there.
    void showLine(quint32 line);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeProgramSide();
    void workEnded();
    void showAt(double seconds);
    void goToLine(quint32 line);
    void chooseMove(quint64 move);

    std::shared_ptr<CutWork> m_work;
    QTabWidget* m_tabs;
    CutPicture* m_picture;
    SolidView* m_solid;
    ProgramList* m_list;
    PlayBar* m_play;
    quint32 m_wantedLine = 0; // 0: none
};

} // namespace torvik
