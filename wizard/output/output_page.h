// SPDX-License-Identifier: MIT
// Step 6: the control to write for, what will be written, and where the diskette drive leads. The
// program is tried in the background as soon as the page is entered or the control changes.
#pragma once

#include "wizard/output/trial_run.h"

#include <QWidget>

#include <cstdint>
#include <memory>

class QButtonGroup;
class QLabel;

namespace torvik {

class CutPicture;
class CutWork;
class TriedPanel;
struct Workshop;

class OutputPage : public QWidget {
    Q_OBJECT

public:
    // The picture shows the piece as the program cuts it.
    OutputPage(Workshop& workshop, CutPicture& picture, QWidget* parent = nullptr);

    // The code of the option button optOutput1 to optOutput4 that is set; one always is.
    std::int16_t target() const;
    // Remembers the target for the next time.
    void rememberTarget();
    // On entry to the step: what the page says of drive A: and of texts that the program cannot
    // hold, the trial, and the focus on the chosen target.
    void enter();
    // Ends the trial.
    void leave();
    TrialRun& trial() { return m_trial; }

private:
    QWidget* buildDrive();
    void changeDrive();
    void showDrive();
    void warnOfComments();
    void beginTrial();
    void trialEnded();
    // At the whole piece, or with a line of its program at once.
    void look(quint32 line);

    Workshop& m_workshop;
    QButtonGroup* m_targets = nullptr;
    QLabel* m_drive = nullptr;
    QLabel* m_comments = nullptr;
    CutPicture& m_picture;
    TriedPanel* m_panel;
    TrialRun m_trial;
    std::shared_ptr<CutWork> m_work; // the piece on show
};

} // namespace torvik
