// SPDX-License-Identifier: MIT
#include "wizard/pen_page.h"

#include "base/error_trap.h"
#include "base/picture.h"
#include "wizard/pen_number_box.h"
#include "wizard/pen_position.h"
#include "wizard/pen_values.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>

namespace torvik {
namespace {

constexpr int linesShownTime = 1600; // ms
constexpr int linesHiddenTime = 200;
constexpr int wholeText = 99; // letters that a refused box has selected

constexpr int helpCut = 50;
constexpr int helpDrill = 52;

QString toQString(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

PenPage::PenPage(Workshop& workshop, WizardHost& host, QWidget* parent)
    : QWidget(parent), m_workshop(workshop), m_host(host), m_controls(makePenControls(*this)) {
    setObjectName("picDetails");
    connectControls();
}

void PenPage::connectControls() {
    for (std::int16_t i = 0; i < 2; ++i)
        connect(m_controls.optCut[static_cast<std::size_t>(i)], &QRadioButton::clicked, this,
                [this, i] {
                    if (isCurrentStep())
                        SetCut(i);
                });
    for (std::size_t i = 0; i < penRowCount; ++i) {
        const auto follow = [this, row = static_cast<std::int16_t>(i)] {
            if (isCurrentStep())
                FinalDepth(row);
        };
        connect(m_controls.txtDet[i], &QLineEdit::textChanged, this, follow);
        connect(m_controls.txtDet[i], &NumberBox::left, this, follow);
    }
    connect(m_controls.chkPeck, &QCheckBox::clicked, this, &PenPage::chkPeck_Click);
    connect(m_controls.cmdTool, &QPushButton::clicked, this, &PenPage::cmdTool_Click);
}

template <typename Work>
void PenPage::quietly(bool& failed, std::string_view procedure, Work&& work) {
    failed = !withQuietErrorTrap(failed ? m_muted : m_workshop.logger, {procedure, "modHpgl"},
                                 std::forward<Work>(work));
}

// The position

void PenPage::ShowPen(std::int16_t direction) {
    withErrorTrap(m_workshop.logger, {"ShowPen", "modHpgl"}, [&] {
        Job& job = m_workshop.job;
        const PenMove move = movePosition(job, direction);
        if (move != PenMove::onPage) {
            leavePens(move == PenMove::behindLast);
            return;
        }
        m_shown.reset();
        markCurrentNode(job);
        m_host.updateTree();
        m_host.PlotLines();
        m_blinkPaths = blinkPaths(job);
        FlashLines();
        ShowDetails();
        raise();
        CheckCutState();
    });
}

void PenPage::leavePens(bool forward) {
    m_shown.reset();
    m_host.stopFlashing();
    markNoNode(m_workshop.job);
    m_host.updateTree();
    if (!forward)
        m_host.clearPreview();
    m_host.PlotLines();
    if (forward)
        m_host.leavePensForward();
    else
        m_host.leavePensBackward();
}

void PenPage::FlashLines() {
    if (!isCurrentStep())
        return;
    m_linesShown = !m_linesShown;
    // Asked for first, so that a frame that fails does not end the blinking.
    m_host.startFlashing(m_linesShown ? linesShownTime : linesHiddenTime);
    quietly(m_flashLinesFailed, "FlashLines", [&] { plotBlinkFrame(); });
}

void PenPage::plotBlinkFrame() {
    m_host.plotBlink(m_blinkPaths, m_linesShown && !currentPen(m_workshop.job).blnOmit);
}

std::string PenPage::strToolTitle() const {
    return torvik::strToolTitle(m_workshop.job);
}

// The settings

bool PenPage::asksForDetails() const {
    const Job& job = m_workshop.job;
    return !currentPen(job).blnOmit && !isOwnPageOfDrilledPen(job);
}

void PenPage::ShowDetails() {
    const bool shown = withErrorTrap(m_workshop.logger, {"ShowDetails", "modHpgl"}, [&] {
        showDetails();
        FinalDepth(0);
    });
    if (!shown) // half a page is not to be passed
        m_host.setNextEnabled(false);
}

void PenPage::showDetails() {
    const QScopedValueRollback hold(m_busy, true);
    Job& job = m_workshop.job;
    const PenForm form = currentForm(job);
    const Settings& settings = currentSettings(job);
    m_controls.title->setText(
        toQString("Please give the details for the " + torvik::strToolTitle(job)));
    showPenRows(m_controls, form, job.gstrFeedUnits, !isOwnPageOfDrilledPen(job));
    m_controls.chkPeck->setChecked(settings.blnPeck);
    showTool();

    PenBoxes shown = boxes();
    shown.text = shownTexts(settings, form, job.gsngFeedFactor);
    if (m_shown == std::pair(job.gintCurrentSettings, form))
        keepTypedZeros(shown.text);
    m_shown = {job.gintCurrentSettings, form};
    for (std::size_t i = 0; i <= rowPass; ++i)
        shown.enabled[i] = isEditableRow(i);
    writeBoxes(shown);

    if (!hasTool(settings, m_workshop.tools)) {
        m_controls.cmdTool->setEnabled(false);
        select(noChoice);
    }
    show();
    ShowState();
    focusFirstEmptyBox();
}

void PenPage::showTool() {
    const Settings& settings = currentSettings(m_workshop.job);
    std::array<std::string, 3> texts;
    if (hasTool(settings, m_workshop.tools)) {
        const Tool& tool = toolAt(m_workshop.tools, settings.intTool);
        texts = {formatInteger(tool.intNumber), tool.strType, formatFixed(tool.sngDiameter, 3)};
    }
    for (std::size_t i = 0; i < texts.size(); ++i)
        setToolLabel(m_controls, i, toQString(texts[i]));
}

// A box that shows nothing because its number is zero keeps the zero that the user typed.
void PenPage::keepTypedZeros(PenTexts& texts) const {
    for (std::size_t i = 0; i < penRowCount; ++i) {
        const std::string typed = m_controls.txtDet[i]->text().toStdString();
        if (texts[i].empty() && boxNumber(typed) == 0)
            texts[i] = typed;
    }
}

bool PenPage::isEditableRow(std::size_t row) const {
    const Job& job = m_workshop.job;
    const Settings& settings = job.gudtSettings[job.gintCurrentSettings];
    if (currentPen(job).blnOmit)
        return false;
    return row != rowPeck || currentForm(job) == PenForm::cutting || settings.blnPeck ||
           !hasTool(settings, m_workshop.tools);
}

PenBoxes PenPage::boxes() const {
    PenBoxes state;
    for (std::size_t i = 0; i < penRowCount; ++i) {
        const NumberBox& box = *m_controls.txtDet[i];
        state.text[i] = box.text().toStdString();
        state.enabled[i] = box.isEnabledTo(this) && box.isVisibleTo(this);
    }
    return state;
}

void PenPage::writeBoxes(const PenBoxes& state) {
    for (std::size_t i = 0; i < penRowCount; ++i) {
        NumberBox& box = *m_controls.txtDet[i];
        const QString text = toQString(state.text[i]);
        if (box.text() != text) {
            box.setText(text);
            if (box.hasFocus()) // the user is typing here: the next digit replaces what came
                box.selectAll();
        }
        openBox(box, state.enabled[i]);
    }
}

void PenPage::focusFirstEmptyBox() {
    for (std::size_t i = 0; i <= rowPass; ++i) {
        NumberBox& box = *m_controls.txtDet[i];
        if (!box.text().isEmpty())
            continue;
        if (box.isVisibleTo(this) && box.isEnabledTo(this))
            box.setFocus();
        return;
    }
}

bool PenPage::SaveDetails() {
    bool kept = false;
    withErrorTrap(m_workshop.logger, {"SaveDetails", "modHpgl"}, [&] {
        kept = true;
        if (!asksForDetails())
            return;
        Job& job = m_workshop.job;
        const PenForm form = currentForm(job);
        const auto refused = storeTexts(boxes().text, m_controls.chkPeck->isChecked(), form,
                                        job.gsngFeedFactor, m_workshop.tools, currentSettings(job));
        kept = !refused;
        if (refused)
            refuse(*refused, cannotBeStored(form, *refused));
    });
    return kept;
}

void PenPage::FinalDepth(std::int16_t Index) {
    if (m_busy)
        return;
    const QScopedValueRollback busy(m_busy, true);
    quietly(m_finalDepthFailed, "FinalDepth", [&] {
        const Job& job = m_workshop.job;
        if (asksForDetails()) {
            PenBoxes state = boxes();
            followFinalDepth(state, static_cast<std::size_t>(Index), currentForm(job),
                             job.gsngFeedFactor);
            writeBoxes(state);
        }
        m_host.setNextEnabled(blnInputComplete());
    });
}

bool PenPage::blnInputComplete() {
    bool complete = false;
    quietly(m_inputCompleteFailed, "blnInputComplete", [&] {
        complete = !asksForDetails() || (!m_controls.toolLabels[toolNumber]->text().isEmpty() &&
                                         allEditableFilled(boxes()));
    });
    return complete;
}

bool PenPage::blnInputValid() {
    bool valid = false;
    withErrorTrap(m_workshop.logger, {"blnInputValid", "modHpgl"}, [&] {
        Job& job = m_workshop.job;
        const auto fault = asksForDetails()
                               ? inputFault(boxes(), currentForm(job), currentSettings(job).blnPeck)
                               : std::nullopt;
        valid = !fault;
        if (fault)
            refuse(fault->row, fault->message);
    });
    return valid;
}

void PenPage::refuse(std::size_t row, const std::string& message) {
    NumberBox& box = *m_controls.txtDet[row];
    box.setSelection(0, wholeText);
    m_workshop.messages.intStdMsgBox(message, styleExclamation, usualTitle);
    // The peck distance may be closed: its check box is the way to it.
    if (box.isEnabledTo(this))
        box.setFocus();
    else
        m_controls.chkPeck->setFocus();
}

void PenPage::chkPeck_Click() {
    if (!isCurrentStep())
        return;
    withErrorTrap(m_workshop.logger, {"chkPeck_Click", "frmMain"}, [&] {
        const QScopedValueRollback hold(m_busy, true);
        m_controls.txtDet[rowPeck]->clear();
        openBox(*m_controls.txtDet[rowPeck], m_controls.chkPeck->isChecked());
        m_host.setNextEnabled(blnInputComplete());
    });
}

// The choice

void PenPage::select(int choice) {
    m_choice = choice;
    // An exclusive group would not let go of its last button.
    m_controls.choice->setExclusive(false);
    for (std::size_t i = 0; i < m_controls.optCut.size(); ++i)
        m_controls.optCut[i]->setChecked(static_cast<int>(i) == choice);
    m_controls.choice->setExclusive(true);
    for (QRadioButton* option : m_controls.optCut) // the tab key reaches both, whatever is set
        option->setFocusPolicy(Qt::StrongFocus);
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
    } else if (hasTool(job.gudtSettings[job.gintCurrentSettings], m_workshop.tools)) {
        select(machine);
        m_controls.cmdTool->setEnabled(true);
    }

    const std::string what = pen.strColour + (drilled ? " holes" : " lines");
    const std::array<std::string, 2> captions{
        (drilled ? "&Drill the " : "&Cut the ") + what,
        (drilled ? "Do NO&T drill the " : "Do NO&T cut the ") + what};
    for (std::size_t i = 0; i < captions.size(); ++i) {
        m_controls.optCut[i]->setText(toQString(captions[i]));
        m_controls.optCut[i]->setAccessibleName(toQString(captions[i]).remove('&'));
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
    job.gintCurrentSettings =
        static_cast<std::int16_t>(pen.intSettings + (pen.blnOmit ? 0 : job.gintCurrentRadius));
    job.gblnOrderSet = false;
    ShowState();

    bool cutAnswered = false;
    if (!pen.blnOmit && pen.blnCircles && job.gintCurrentRadius == 0) {
        pen.blnDrill = askForDrilling();
        cutAnswered = !pen.blnDrill;
        if (pen.blnDrill)
            ShowPen(1);
    }
    updateCurrentNode(job, cutAnswered);
    m_host.updateTree();
    m_blinkPaths = blinkPaths(job);
    quietly(m_flashLinesFailed, "FlashLines", [&] { plotBlinkFrame(); });
    ShowDetails();
    offerTool();
    CheckCutState();
}

bool PenPage::askForDrilling() {
    return m_workshop.messages.intStdMsgBox("Would you like to cut the circles as drilled holes?",
                                            styleQuestion, "Drilling") == buttonYes;
}

// A group that is to be machined and has no tool yet: the choice stays, and the tool comes next.
void PenPage::offerTool() {
    if (!asksForDetails() || hasTool(currentSettings(m_workshop.job), m_workshop.tools))
        return;
    select(machine);
    m_controls.cmdTool->setEnabled(true);
    m_controls.cmdTool->setFocus();
}

void PenPage::CheckCutState() {
    withErrorTrap(m_workshop.logger, {"CheckCutState", "modHpgl"}, [&] {
        m_controls.optCut[leaveOut]->setEnabled(machinedPens(m_workshop.job) > 1);
    });
}

// The tool

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
        return;
    }
    const Job& job = m_workshop.job;
    const bool circles = currentPen(job).blnCircles;
    const bool mayLeaveOut = m_controls.optCut[leaveOut]->isEnabledTo(this);
    if (!mayLeaveOut || (circles && job.gintCurrentRadius != 1)) {
        select(machine);
        m_controls.cmdTool->setEnabled(true);
    } else {
        select(leaveOut);
        if (!circles)
            SetCut(leaveOut);
    }
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
        if (!toolMissesHole(job, diameter))
            return;
        const std::string question =
            "You have chosen a " + formatFixed(diameter, 2) + " mm diameter tool to drill a " +
            formatFixed(holeDiameter(job), 2) +
            " mm diameter circle.\nAre you sure you want to use this tool?";
        if (m_workshop.messages.intStdMsgBox(question, styleQuestion, usualTitle) == buttonNo)
            m_host.startToolSelection();
    });
}

} // namespace torvik
