// SPDX-License-Identifier: MIT
// The choice on the page, and its tool.
#include "answers/pen_position.h"
#include "answers/pen_values.h"
#include "base/picture.h"
#include "forms/help_key.h"
#include "forms/number_box.h"
#include "languages/shown_text.h"
#include "wizard/pens/pen_page.h"
#include "wizard/pens/pen_words.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>

namespace torvik {
namespace {

constexpr int helpCut = 50;
constexpr int helpDrill = 52;

} // namespace

void PenPage::select(int choice) {
    m_choice = choice;
    // An exclusive group would not let go of its last button.
    m_controls.choice->setExclusive(false);
    for (std::size_t i = 0; i < m_controls.optCut.size(); ++i)
        m_controls.optCut[i]->setChecked(static_cast<int>(i) == choice);
    m_controls.choice->setExclusive(true);
}

void PenPage::ShowState() {
    withErrorTrap(m_workshop.logger, {"ShowState", "modHpgl"}, [&] { showState(); });
}

void PenPage::showState() {
    const QScopedValueRollback hold(m_busy, true);
    const Job& job = m_workshop.job;
    const Pen& pen = currentPen(job);
    const bool drilled = pen.blnDrill;
    for (std::size_t i = 0; i < penRowCount; ++i)
        if (i <= rowPass || pen.blnOmit)
            openBox(*m_controls.txtDet[i], isEditableRow(i));
    m_controls.chkPeck->setEnabled(!pen.blnOmit);
    colourToolLabels(m_controls, pen.blnOmit);

    if (pen.blnOmit) {
        m_controls.cmdTool->setEnabled(false);
        m_host.setNextEnabled(true);
        for (std::size_t i = 0; i < m_controls.toolLabels.size(); ++i)
            setToolLabel(m_controls, i, {});
        select(leaveOut);
    } else if (isOwnPageOfDrilledPen(job)) {
        select(machine);
    } else if (isInList(m_workshop.tools, currentSettings(job).intTool)) {
        select(machine);
        m_controls.cmdTool->setEnabled(true);
    }

    const std::array<QString, 2> captions =
        drilled ? std::array{tr("&Drill the %1 holes"), tr("Do NO&T drill the %1 holes")}
                : std::array{tr("&Cut the %1 lines"), tr("Do NO&T cut the %1 lines")};
    for (std::size_t i = 0; i < captions.size(); ++i) {
        const QString caption = captions[i].arg(shownText(pen.strColour));
        m_controls.optCut[i]->setText(caption);
        m_controls.optCut[i]->setAccessibleName(QString(caption).remove(u'&'));
        m_controls.optCut[i]->setProperty(helpContextProperty, drilled ? helpDrill : helpCut);
    }
}

void PenPage::SetCut(std::int16_t Index) {
    withErrorTrap(m_workshop.logger, {"SetCut", "modHpgl"}, [&] { setCut(Index); });
}

// What the program itself selects raises no click, so only the user's choices come here.
void PenPage::setCut(std::int16_t Index) {
    if (!SaveDetails()) {
        select(m_choice);
        return;
    }
    m_choice = Index;
    Job& job = m_workshop.job;
    Pen& pen = currentPen(job);
    pen.blnOmit = Index == leaveOut;
    job.position.gintCurrentSettings = static_cast<std::int16_t>(
        pen.intSettings + (pen.blnOmit ? 0 : job.position.gintCurrentRadius));
    job.answers.gblnOrderSet = false;
    ShowState();

    bool cutAnswered = false;
    if (!pen.blnOmit && pen.blnCircles && job.position.gintCurrentRadius == 0) {
        pen.blnDrill = askForDrilling();
        cutAnswered = !pen.blnDrill;
        if (pen.blnDrill)
            ShowPen(1);
    }
    updateCurrentNode(job, cutAnswered);
    m_host.updateTree();
    quietly(m_flashLinesFailed, "FlashLines", [&] { plotBlinkFrame(); });
    ShowDetails();
    offerTool();
    CheckCutState();
}

bool PenPage::askForDrilling() {
    return m_workshop.messages.intStdMsgBox(
               tr("Would you like to cut the circles as drilled holes?").toStdString(),
               styleQuestion, tr("Drilling").toStdString()) == buttonYes;
}

// A group that is to be machined and has no tool yet: the choice stays, and the tool comes next.
void PenPage::offerTool() {
    if (!asksForDetails() || isInList(m_workshop.tools, currentSettings(m_workshop.job).intTool))
        return;
    select(machine);
    m_controls.cmdTool->setEnabled(true);
    m_controls.cmdTool->setFocus();
    sayQuietly();
}

void PenPage::CheckCutState() {
    withErrorTrap(m_workshop.logger, {"CheckCutState", "modHpgl"}, [&] {
        QRadioButton& leave = *m_controls.optCut[leaveOut];
        const bool mayLeaveOut = machinedPens(m_workshop.job) > 1;
        if (!mayLeaveOut && leave.hasFocus()) // else it would go on to cmdBack
            m_controls.optCut[machine]->setFocus();
        leave.setEnabled(mayLeaveOut);
    });
}

void PenPage::cmdTool_Click() {
    // Stored first: while the selection is open nothing more is typed.
    if (isCurrentStep() && SaveDetails())
        m_host.startToolSelection();
}

void PenPage::ToolSelection(std::int16_t position) {
    withErrorTrap(m_workshop.logger, {"ToolSelection", "modHpgl"}, [&] {
        if (position >= 1)
            SetTool(position);
        else if (SaveDetails())
            cancelledTool();
    });
}

void PenPage::cancelledTool() {
    if (!m_controls.toolLabels[toolNumber]->text().isEmpty()) {
        ShowDetails();
        focusNextIfDone();
        return;
    }
    const Job& job = m_workshop.job;
    const bool mayLeaveOut = m_controls.optCut[leaveOut]->isEnabledTo(this);
    if (!mayLeaveOut || (currentPen(job).blnCircles && job.position.gintCurrentRadius != 1)) {
        select(machine);
        m_controls.cmdTool->setEnabled(true);
        sayQuietly();
        return;
    }
    SetCut(leaveOut);
    setToolNote(m_controls, tr("No tool was chosen, so the %1 are left out").arg(penText(job)));
    focusNextIfDone();
}

void PenPage::SetTool(std::int16_t position) {
    withErrorTrap(m_workshop.logger, {"SetTool", "modHpgl"}, [&] {
        const float diameter = toolAt(m_workshop.tools, position).sngDiameter;
        if (!SaveDetails())
            return;
        Job& job = m_workshop.job;
        Settings& settings = currentSettings(job);
        settings.intTool = position;
        settings.blnComplete = isCompleteGroup(settings, currentForm(job), m_workshop.tools);
        ShowDetails();
        focusNextIfDone();
        if (!toolMissesHole(job, diameter))
            return;
        const QString question =
            tr("You have chosen a %1 mm diameter tool to drill a %2 mm diameter circle.\nAre you "
               "sure you want to use this tool?")
                .arg(QString::fromStdString(formatFixed(diameter, 2)),
                     QString::fromStdString(formatFixed(holeDiameter(job), 2)));
        if (m_workshop.messages.intStdMsgBox(question.toStdString(), styleQuestion, usualTitle) ==
            buttonNo)
            m_host.startToolSelection();
    });
}

} // namespace torvik
