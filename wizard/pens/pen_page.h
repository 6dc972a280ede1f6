// SPDX-License-Identifier: MIT
// The pen page: the cut, drill or leave-out choice of one pen or hole size, its tool and its
// settings. It shows the job's position and passes on what the user does; the rules are those of
// pen_values.h, pen_checks.h and pen_position.h.
#pragma once

#include "answers/pen_checks.h"
#include "base/error_trap.h"
#include "check/findings.h"
#include "wizard/host/wizard_host.h"
#include "wizard/host/workshop.h"
#include "wizard/pens/pen_controls.h"

#include <QWidget>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace torvik {

// Every public procedure traps run-time errors, logs them with its name and "modHpgl" and ends.
class PenPage : public QWidget {
    Q_OBJECT

public:
    // Both must outlive the page.
    PenPage(Workshop& workshop, WizardHost& host, QWidget* parent = nullptr);

    // Goes to the next (1) or previous (-1) page, or shows the current one again (0): marks it in
    // the tree, starts the blinking and fills the page. Where the pens end it stops the blinking,
    // redraws the preview and has the main window leave step 3.
    void ShowPen(std::int16_t direction);

    // Fills the page from the current pen and settings group.
    void ShowDetails();
    // Puts what was typed into the settings group; on the page of a left-out pen and on the own
    // page of a drilled one there is nothing to put. False where a number could not be stored: the
    // user was told, the box is selected, nothing is changed, and the page may not be left.
    bool SaveDetails();
    // The same into answers that are only looked at; a number that could not be stored stays out.
    void storeTyped(Answers& answers) const;
    // The texts of the boxes and whether to machine was chosen; and the same once more.
    std::vector<std::string> typedTexts() const;
    void typeAgain(const std::vector<std::string>& texts);

    // Sets the numbers that follow from row Index, and cmdNext.
    void FinalDepth(std::int16_t Index);
    // Whether cmdNext may be enabled.
    bool blnInputComplete();
    // Whether the page may be left; the user was told why if not.
    bool blnInputValid();

    // Sets the choice buttons and which controls can be used.
    void ShowState();
    // The user chose to machine (0) or to leave out (1).
    void SetCut(std::int16_t Index);
    // Allows to leave the pen out only while another is machined.
    void CheckCutState();
    // One blink step, which asks for the next. Called by the timer, and after a step of the wizard
    // that left the page in place.
    void FlashLines();

    // The tool selection's answer: a place in the tool list, 0 when it was cancelled.
    void ToolSelection(std::int16_t position);
    // Gives the current group that tool and asks about a drill that does not fit its hole.
    void SetTool(std::int16_t position);
    // What the page and its tool are for.
    std::string strToolTitle() const;

private:
    static constexpr int noChoice = -1;
    static constexpr int machine = 0;
    static constexpr int leaveOut = 1;

    void connectControls();
    void edited(std::size_t row);
    void left(std::size_t row);
    void chkPeck_Click();
    void cmdTool_Click();
    bool isCurrentStep() const { return m_workshop.job.gintWizardStep == 3; }

    void leavePens(bool forward);
    void showDetails();
    void showState();
    void showTool();
    void setCut(std::int16_t Index);
    bool askForDrilling();
    void cancelledTool();
    void offerTool();
    void plotBlinkFrame();

    // Whether the page asks for the settings of a group.
    bool asksForDetails() const;
    // Whether the row can be edited on this page as the record stands.
    bool isEditableRow(std::size_t row) const;
    PenBoxes boxes() const;
    void writeBoxes(const PenBoxes& state);
    void keepTypedZeros(PenTexts& texts) const;
    void focusFirstEmptyBox();
    void focusNextIfDone();
    QString toolNote() const;
    // Below the rows: what is missing, and what makes no sense in the group as it is typed.
    void sayQuietly();
    QString missingText() const;
    check::Findings senseOfPage() const;
    void refuse(const InputFault& fault);
    void select(int choice);

    // Runs the work; a failure is logged unless the last run failed too.
    template <typename Work>
    void quietly(bool& failed, std::string_view procedure, Work&& work) {
        failed = !withQuietErrorTrap(failed ? m_muted : m_workshop.logger, {procedure, "modHpgl"},
                                     std::forward<Work>(work));
    }

    Workshop& m_workshop;
    WizardHost& m_host;
    PenControls m_controls;

    bool m_busy = false; // the page itself writes into its controls
    int m_choice = noChoice;
    // The group and form in the boxes, none before a page is entered.
    std::optional<std::pair<std::int16_t, PenForm>> m_shown;
    std::optional<PenEdit> m_edit; // while its box keeps the focus

    std::vector<std::int16_t> m_blinkPaths;
    bool m_linesShown = true;
    Logger m_muted;
    bool m_finalDepthFailed = false;
    bool m_inputCompleteFailed = false;
    bool m_flashLinesFailed = false;
};

} // namespace torvik
