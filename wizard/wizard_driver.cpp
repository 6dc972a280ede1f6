// SPDX-License-Identifier: MIT
#include "wizard/wizard_driver.h"

#include "answers/tool_changes.h"
#include "base/error_trap.h"
#include "job/colour_tree.h"
#include "preview/preview_widget.h"
#include "tools/dialogs/frm_tool_select.h"
#include "wizard/colour_tree_view.h"
#include "wizard/globals_page.h"
#include "wizard/going_on.h"
#include "wizard/header_page.h"
#include "wizard/host/group_name.h"
#include "wizard/later.h"
#include "wizard/order_page.h"
#include "wizard/output/output_page.h"
#include "wizard/output/output_step.h"
#include "wizard/pens/pen_page.h"
#include "wizard/start_page.h"
#include "wizard/step_list.h"

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>

namespace torvik {

WizardDriver::WizardDriver(Workshop& workshop, const MainControls& controls, QWidget& window)
    : m_workshop(workshop), m_controls(controls), m_window(window), m_autosave(workshop, controls) {
    setParent(&window);
    m_autosave.setParent(this);
    connect(&m_autosave, &Autosave::unkept, this, &WizardDriver::answersUnkept);
    m_flash.setParent(this);
    m_toolSelect.setParent(this);
    m_flash.setObjectName(QStringLiteral("tmrFlash"));
    m_flash.setSingleShot(true);
    connect(&m_flash, &QTimer::timeout, this, [this] { m_controls.pens->FlashLines(); });
    m_toolSelect.setObjectName(QStringLiteral("tmrToolSelect"));
    m_toolSelect.setSingleShot(true);
    connect(&m_toolSelect, &QTimer::timeout, this, &WizardDriver::selectTool);
}

void WizardDriver::Wizard(std::int16_t intDirection) {
    withErrorTrap(m_workshop.logger, {"Wizard", "frmMain"}, [&] {
        const bool fromBack = m_controls.back->hasFocus();
        if (m_flash.isActive()) {
            m_flash.stop();
            PlotLines();
        }
        switch (m_workshop.job.gintWizardStep) {
        case 1:
            later(*this, [this] { emit drawingWanted(); });
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
        m_autosave.saveNow();
        // Where the control with the focus has gone with its page, Enter must not lead back.
        if (intDirection > 0 && m_controls.back->hasFocus())
            m_controls.next->setFocus();
        else if (intDirection < 0 && fromBack && m_controls.next->hasFocus())
            m_controls.back->setFocus(); // on from page to page with the same key
    });
}

void WizardDriver::fromStep2(std::int16_t direction) {
    Job& job = m_workshop.job;
    m_controls.globals->SaveGlobals();
    if (direction < 0) {
        m_autosave.saveNow();
        m_kept.keep(job);
        showStep(1);
        later(*this, [this] {
            emit drawingWanted();
            if (m_workshop.job.gintWizardStep == 1)
                m_controls.globals->RestoreGlobals();
        });
        return;
    }
    if (job.drawing.gintPathCount == 0) {
        warnOfEmptyDrawing();
        return;
    }
    if (!m_controls.globals->blnGlobalsValid())
        return;
    job.position.gintCurrentPen = 0;
    showStep(3);
    m_controls.pens->ShowPen(1);
}

void WizardDriver::fromStep3(std::int16_t direction) {
    const Job& job = m_workshop.job;
    const bool stored = m_controls.pens->SaveDetails();
    if (stored && direction < 0)
        m_controls.pens->ShowPen(-1);
    else if (stored && (job.answers.gudtPens[job.position.gintCurrentPen].blnOmit ||
                        m_controls.pens->blnInputValid()))
        m_controls.pens->ShowPen(1);
    // A page that stays goes on blinking.
    if (job.gintWizardStep == 3 && !m_flash.isActive())
        m_controls.pens->FlashLines();
}

void WizardDriver::fromStep4(std::int16_t direction) {
    Job& job = m_workshop.job;
    m_controls.order->readOrder();
    if (direction < 0) {
        showStep(3);
        job.position.gintCurrentPen = job.position.gintLastPen;
        m_controls.pens->ShowPen(0);
        return;
    }
    if (asksForTool(m_workshop))
        return;
    showStep(5);
    m_controls.preview->DrawPiece();
    m_controls.header->fill();
}

void WizardDriver::fromStep5(std::int16_t direction) {
    m_controls.header->readBoxes();
    if (direction < 0) {
        showStep(4);
        PlotLines();
        m_controls.order->ShowOrder(-1);
    } else if (m_controls.header->blnHeaderDone()) {
        showStep(6);
    }
}

void WizardDriver::fromStep6(std::int16_t direction) {
    if (direction < 0)
        showStep(5);
    else
        later(*this, [this] { writeOutput(); });
}

void WizardDriver::writeOutput() {
    m_controls.output->rememberTarget();
    switch (OutputStep(m_workshop, m_controls.output->trial(), m_window, [this] {
                m_autosave.programWritten();
            }).run(m_controls.output->target())) {
    case AfterOutput::openOther:
        returnToStart();
        break;
    case AfterOutput::close:
        emit endWanted();
        break;
    case AfterOutput::saveOther:
        showStep(6);
        break;
    case AfterOutput::nothing:
        break;
    }
}

void WizardDriver::leavePensBackward() {
    showStep(2);
    PlotLines();
    m_controls.globals->RestoreGlobals();
    m_controls.globals->enter();
}

void WizardDriver::leavePensForward() {
    m_workshop.job.position.gintLastPen = m_workshop.job.position.gintCurrentPen;
    showStep(4);
    m_controls.order->ShowOrder(1);
}

void WizardDriver::startToolSelection() {
    m_toolSelect.start(0);
}

void WizardDriver::selectTool() {
    withErrorTrap(m_workshop.logger, {"tmrToolSelect_Timer", "frmMain"}, [&] {
        m_autosave.stop(); // until the groups have followed the list
        const ToolsOfGroups before(m_workshop.job, m_workshop.tools);
        FrmToolSelect dialog(m_workshop.tools, m_workshop.registry, m_workshop.logger,
                             m_workshop.messages, &m_window);
        dialog.setToolTitle(m_controls.pens->strToolTitle());
        dialog.placeBeside(*m_controls.pens);
        dialog.exec();
        emit toolsUnsaved(m_workshop.tools.toolsUnsaved || m_workshop.tools.typesUnsaved);
        const std::int16_t chosen = dialog.chosenPosition();
        before.follow(m_workshop.job, dialog.removedPlaces());
        m_autosave.start();
        if (dialog.hasDeleted())
            warnOfToolChanges(before, chosen);
        m_controls.pens->ToolSelection(chosen);
    });
    m_autosave.start(); // after an error too
    m_autosave.saveNow();
}

void WizardDriver::warnOfToolChanges(const ToolsOfGroups& before, std::int16_t chosen) {
    // The group on show gets the tool that was just chosen.
    const std::int16_t passedOver =
        chosen > 0 ? m_workshop.job.position.gintCurrentSettings : std::int16_t{0};
    QString text;
    for (const auto& [pen, radius] :
         before.changedSince(m_workshop.job, m_workshop.tools, passedOver))
        text += u'\n' + groupName(m_workshop.job.answers.gudtPens[pen], radius);
    if (!text.isEmpty())
        m_workshop.messages.intStdMsgBox(
            (tr("After the deletion these have another tool, or none. Please check them:") + text)
                .toStdString(),
            styleExclamation, usualTitle);
}

void WizardDriver::showStep(std::int16_t step) {
    m_workshop.job.gintWizardStep = step;
    m_controls.steps->showStep(step);
    m_controls.pages->setCurrentIndex(step - 1);
    m_controls.pictures->setCurrentIndex(step == 6 ? 1 : 0);
    if (step != 6)
        m_controls.output->leave();
    m_controls.back->setVisible(step > 1);
    m_controls.next->setVisible(step > 1);
    m_controls.start->setVisible(step == 1);
    m_controls.next->setText(step == 6 ? tr("&Write…") : tr("&Next"));
    m_controls.next->setToolTip(step == 6 ? tr("Write the program (Enter)")
                                          : tr("To the next page (Enter)"));
    m_controls.importedLabel->setVisible(step > 1);
    // Steps 2 and 3 enable cmdNext by their own rules.
    setNextEnabled(step != 2 && step != 3);
    if (step == 1) {
        emit drawingLeft();
        m_controls.opening->offerDrawing(
            QString::fromStdString(m_workshop.job.drawing.gstrPlotFile));
        m_controls.start->setFocus();
    } else if (step == 6) {
        m_controls.output->enter();
    }
}

void WizardDriver::savePage() {
    switch (m_workshop.job.gintWizardStep) {
    case 2:
        m_controls.globals->SaveGlobals();
        break;
    case 3:
        m_controls.pens->SaveDetails();
        break;
    case 4:
        m_controls.order->readOrder();
        break;
    case 5:
        m_controls.header->readBoxes();
        break;
    default:
        break;
    }
}

void WizardDriver::beforeImport() {
    savePage();
    m_autosave.stop();
    m_before = m_kept;
    if (m_workshop.job.gintWizardStep > 1)
        m_before.keep(m_workshop.job);
}

void WizardDriver::refuseImport() {
    m_kept = std::move(m_before);
    returnToStart();
}

void WizardDriver::layOutImported(const std::string& damage) {
    const bool cameBack = m_kept.giveBack(m_workshop.job);
    CreateTree(m_workshop.job.answers, m_workshop.job.position, m_workshop.logger);
    showStep(2);
    updateTree();
    m_controls.preview->GetScale();
    PlotLines();
    m_controls.globals->sayDamage(damage);
    m_controls.globals->RestoreGlobals();
    m_controls.globals->enter();
    if (m_workshop.job.drawing.gintPathCount == 0)
        warnOfEmptyDrawing();
    if (auto stopped = m_autosave.open(cameBack))
        goOn(m_workshop, m_controls, *this, std::move(*stopped));
}

void WizardDriver::continueDrawing() {
    m_kept = {}; // the answers in the job are newer from now on
    emit drawingContinued();
    leavePensBackward();
}

void WizardDriver::warnOfEmptyDrawing() {
    m_workshop.messages.intStdMsgBox(
        tr("This drawing holds nothing that can be milled:").toStdString() + "\n" +
            m_workshop.job.drawing.gstrPlotFile,
        styleExclamation, usualTitle);
}

void WizardDriver::returnToStart() {
    Job& job = m_workshop.job;
    ClearData(job);
    job.drawing.gstrPlotFile.clear();
    m_window.setWindowTitle(QString::fromUtf8(usualTitle));
    updateTree();
    clearPreview();
    showStep(1);
}

void WizardDriver::stop() {
    m_autosave.stop();
    m_flash.stop();
    m_toolSelect.stop();
}

void WizardDriver::setNextEnabled(bool enabled) {
    m_controls.next->setEnabled(enabled);
}

void WizardDriver::focusNext() {
    m_controls.next->setFocus();
}

void WizardDriver::updateTree() {
    m_controls.tree->showTree(m_workshop.job);
    m_autosave.saveSoon(); // a choice was made, or there is another page
}

void WizardDriver::PlotLines() {
    m_controls.preview->PlotLines();
}

void WizardDriver::clearPreview() {
    m_controls.preview->clear();
}

void WizardDriver::plotBlink(const std::vector<std::int16_t>& paths, bool visible) {
    m_controls.preview->plotBlink(paths, visible);
}

void WizardDriver::startFlashing(int milliseconds) {
    m_flash.start(milliseconds);
}

void WizardDriver::stopFlashing() {
    m_flash.stop();
}

} // namespace torvik
