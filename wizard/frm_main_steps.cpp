// SPDX-License-Identifier: MIT
// The state machine of the six steps.
#include "answers/tool_changes.h"
#include "base/error_trap.h"
#include "gcode/tool_check.h"
#include "preview/preview_widget.h"
#include "tools/dialogs/frm_tool_select.h"
#include "wizard/colour_tree_view.h"
#include "wizard/frm_main.h"
#include "wizard/globals_page.h"
#include "wizard/header_page.h"
#include "wizard/order_page.h"
#include "wizard/output/output_page.h"
#include "wizard/output/output_step.h"
#include "wizard/pens/pen_page.h"
#include "wizard/step_list.h"

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>

namespace torvik {

void FrmMain::Wizard(std::int16_t intDirection) {
    withErrorTrap(m_workshop.logger, {"Wizard", "frmMain"}, [&] {
        if (m_flash.isActive()) {
            m_flash.stop();
            PlotLines();
        }
        switch (m_workshop.job.gintWizardStep) {
        case 1:
            later([this] { ReadFile(); });
            break;
        case 2:
            fromStep2(intDirection);
            break;
        case 3:
            fromStep3(intDirection);
            break;
        case 4:
            fromStep4(intDirection);
            break;
        case 5:
            fromStep5(intDirection);
            break;
        case 6:
            fromStep6(intDirection);
            break;
        default:
            break;
        }
        // Where the control with the focus has gone with its page, Enter must not lead back.
        if (intDirection > 0 && m_back->hasFocus())
            m_next->setFocus();
    });
}

void FrmMain::fromStep2(std::int16_t direction) {
    Job& job = m_workshop.job;
    m_globals->SaveGlobals();
    if (direction < 0) {
        m_kept.keep(job);
        showStep(1);
        later([this] {
            ReadFile();
            if (m_workshop.job.gintWizardStep == 1)
                m_globals->RestoreGlobals();
        });
        return;
    }
    if (job.drawing.gintPathCount == 0) {
        warnOfEmptyDrawing();
        return;
    }
    if (!m_globals->blnGlobalsValid())
        return;
    job.position.gintCurrentPen = 0;
    showStep(3);
    m_pens->ShowPen(1);
}

void FrmMain::fromStep3(std::int16_t direction) {
    const Job& job = m_workshop.job;
    const bool stored = m_pens->SaveDetails();
    if (stored && direction < 0)
        m_pens->ShowPen(-1);
    else if (stored &&
             (job.answers.gudtPens[job.position.gintCurrentPen].blnOmit || m_pens->blnInputValid()))
        m_pens->ShowPen(1);
    // A page that stays goes on blinking.
    if (job.gintWizardStep == 3 && !m_flash.isActive())
        m_pens->FlashLines();
}

void FrmMain::fromStep4(std::int16_t direction) {
    Job& job = m_workshop.job;
    m_order->readOrder();
    if (direction < 0) {
        showStep(3);
        job.position.gintCurrentPen = job.position.gintLastPen;
        m_pens->ShowPen(0);
        return;
    }
    const std::string missing = groupWithoutTool(job, m_workshop.tools);
    if (!missing.empty()) {
        m_workshop.messages.intStdMsgBox("Please choose a tool for " + missing, styleExclamation,
                                         usualTitle);
        return;
    }
    showStep(5);
    m_preview->DrawPiece();
    m_header->fill();
}

void FrmMain::fromStep5(std::int16_t direction) {
    m_header->readBoxes();
    if (direction < 0) {
        showStep(4);
        PlotLines();
        m_order->ShowOrder(-1);
    } else if (m_header->blnHeaderDone()) {
        showStep(6);
    }
}

void FrmMain::fromStep6(std::int16_t direction) {
    if (direction < 0)
        showStep(5);
    else
        later([this] { writeOutput(); });
}

void FrmMain::writeOutput() {
    m_output->rememberTarget();
    switch (OutputStep(m_workshop, *this).run(m_output->target())) {
    case AfterOutput::openOther:
        returnToStart();
        break;
    case AfterOutput::close:
        m_closing = true;
        m_services.Shutdown();
        break;
    case AfterOutput::saveOther:
        showStep(6);
        break;
    case AfterOutput::nothing:
        break;
    }
}

void FrmMain::leavePensBackward() {
    showStep(2);
    PlotLines();
    m_globals->RestoreGlobals();
    m_globals->enter();
}

void FrmMain::leavePensForward() {
    m_workshop.job.position.gintLastPen = m_workshop.job.position.gintCurrentPen;
    showStep(4);
    m_order->ShowOrder(1);
}

void FrmMain::startToolSelection() {
    m_toolSelect.start(0);
}

void FrmMain::selectTool() {
    withErrorTrap(m_workshop.logger, {"tmrToolSelect_Timer", "frmMain"}, [&] {
        const ToolsOfGroups before(m_workshop.job, m_workshop.tools);
        FrmToolSelect dialog(m_workshop.tools, m_workshop.registry, m_workshop.logger,
                             m_workshop.messages, this);
        dialog.setToolTitle(m_pens->strToolTitle());
        dialog.placeBeside(*m_pens);
        dialog.exec();
        const std::int16_t chosen = dialog.chosenPosition();
        if (dialog.hasDeleted())
            warnOfToolChanges(before, chosen);
        m_pens->ToolSelection(chosen);
    });
}

void FrmMain::warnOfToolChanges(const ToolsOfGroups& before, std::int16_t chosen) {
    // The group on show gets the tool that was just chosen.
    const std::int16_t passedOver =
        chosen > 0 ? m_workshop.job.position.gintCurrentSettings : std::int16_t{0};
    std::string text;
    for (const std::string& group :
         before.changedSince(m_workshop.job, m_workshop.tools, passedOver))
        text += "\n" + group;
    if (!text.empty())
        m_workshop.messages.intStdMsgBox(
            "After the deletion these have another tool, or none. Please check them:" + text,
            styleExclamation, usualTitle);
}

void FrmMain::showStep(std::int16_t step) {
    m_workshop.job.gintWizardStep = step;
    m_steps->showStep(step);
    m_pages->setCurrentIndex(step - 1);
    m_back->setVisible(step > 1);
    m_next->setVisible(step > 1);
    m_start->setVisible(step == 1);
    m_next->setText(step == 6 ? tr("&Write…") : tr("&Next"));
    m_next->setToolTip(step == 6 ? tr("Write the program (Enter)")
                                 : tr("To the next page (Enter)"));
    m_importedLabel->setVisible(step > 1);
    // Steps 2 and 3 enable cmdNext by their own rules.
    setNextEnabled(step != 2 && step != 3);
    if (step == 1) {
        showSkipped(0);
        m_start->setFocus();
    } else if (step == 6) {
        m_output->enter();
    }
}

} // namespace torvik
