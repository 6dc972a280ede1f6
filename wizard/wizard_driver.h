// SPDX-License-Identifier: MIT
// The driver of the six steps: what Back, Next and Start do, which page is on show, and what the
// pages ask of the window they stand in.
#pragma once

#include "answers/kept_answers.h"
#include "wizard/autosave.h"
#include "wizard/host/wizard_host.h"
#include "wizard/host/workshop.h"
#include "wizard/main_controls.h"

#include <QObject>
#include <QTimer>

namespace torvik {

class ToolsOfGroups;

class WizardDriver : public QObject, public WizardHost {
    Q_OBJECT

public:
    // The controls are there when the first step is shown; `window` is what dialogs stand over.
    WizardDriver(Workshop& workshop, const MainControls& controls, QWidget& window);

    // Saves and checks the page on show and lays out the next: -1 for Back, 1 for Next and Start.
    void Wizard(std::int16_t intDirection);
    // Shows the page of a step (1 to 6) and its buttons.
    void showStep(std::int16_t step);
    // What the page on show holds goes into the job.
    void savePage();
    // The same, and the job's answers are kept in case the import that follows is refused.
    void beforeImport();
    // Lays out step 2 for the drawing that was just imported, with the answers kept for it, or goes
    // on where an earlier run stopped. damage: why saved answers were not used, or empty.
    void layOutImported(const std::string& damage);
    // Shows the start page. The answers of the drawing before come back when it is opened next.
    void refuseImport();
    // Lays out step 2 for the drawing in memory, as it was left for the start page.
    void continueDrawing();
    // Forgets the job and shows the start page.
    void returnToStart();
    // Keeps the answers and stops the timers: nothing opens or blinks any more.
    void stop();

    void setNextEnabled(bool enabled) override;
    void focusNext() override;
    void updateTree() override;
    void PlotLines() override;
    void clearPreview() override;
    void plotBlink(const std::vector<std::int16_t>& paths, bool visible) override;
    void startFlashing(int milliseconds) override;
    void stopFlashing() override;
    void startToolSelection() override;
    void leavePensBackward() override;
    void leavePensForward() override;

signals:
    // The user wants to choose a drawing. The receiver opens it before the signal returns.
    void drawingWanted();
    // The start page is shown: what was said of the drawing before holds no longer.
    void drawingLeft();
    // Whether the tools of the workshop, or their types, could not be saved.
    void toolsUnsaved(bool unsaved);
    // Whether the answers of the drawing could not be kept for a later start.
    void answersUnkept(bool unkept);
    // What is said of the drawing holds again.
    void drawingContinued();
    // The user ends the program after a program was written.
    void endWanted();

private:
    void fromStep2(std::int16_t direction);
    void fromStep3(std::int16_t direction);
    void fromStep4(std::int16_t direction);
    void fromStep5(std::int16_t direction);
    void fromStep6(std::int16_t direction);
    void warnOfEmptyDrawing();
    void writeOutput();
    // tmrToolSelect has run out: the tool selection, then PenPage::ToolSelection.
    void selectTool();
    void warnOfToolChanges(const ToolsOfGroups& before, std::int16_t chosen);

    Workshop& m_workshop;
    const MainControls& m_controls;
    QWidget& m_window;
    KeptAnswers m_kept;
    KeptAnswers m_before; // those of the drawing that an import takes the place of
    Autosave m_autosave;
    QTimer m_flash;
    QTimer m_toolSelect;
};

} // namespace torvik
