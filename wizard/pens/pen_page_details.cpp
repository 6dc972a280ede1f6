// SPDX-License-Identifier: MIT
// The settings on the page: shown, stored, followed and checked.
#include "answers/pen_position.h"
#include "answers/pen_values.h"
#include "base/picture.h"
#include "check/sense/sense.h"
#include "forms/number_box.h"
#include "forms/quiet_line.h"
#include "wizard/host/finding_texts.h"
#include "wizard/pens/pen_page.h"
#include "wizard/pens/pen_words.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>

namespace torvik {
namespace {

constexpr const char* machineWord = "machine";
constexpr int wholeText = 99; // letters that a refused box has selected

} // namespace

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
    m_controls.place->setText(pagePlaceText(job));
    m_controls.title->setText(tr("Please give the details for the %1").arg(pageSubjectText(job)));
    showPenRows(m_controls, form, job.answers.gstrFeedUnits, !isOwnPageOfDrilledPen(job));
    m_controls.chkPeck->setChecked(settings.blnPeck);
    showTool();

    PenBoxes shown = boxes();
    shown.text = shownTexts(settings, form, job.answers.gsngFeedFactor);
    if (m_shown == std::pair(job.position.gintCurrentSettings, form))
        keepTypedZeros(shown.text);
    m_shown = {job.position.gintCurrentSettings, form};
    m_edit.reset();
    for (std::size_t i = 0; i <= rowPass; ++i)
        shown.enabled[i] = isEditableRow(i);
    writeBoxes(shown);

    if (!isInList(m_workshop.tools, settings.intTool)) {
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
    if (isInList(m_workshop.tools, settings.intTool)) {
        const Tool& tool = toolAt(m_workshop.tools, settings.intTool);
        texts = {formatInteger(tool.intNumber), tool.strType, formatFixed(tool.sngDiameter, 3)};
    }
    for (std::size_t i = 0; i < texts.size(); ++i)
        setToolLabel(m_controls, i, QString::fromStdString(texts[i]));
    setToolNote(m_controls, toolNote());
}

// A tool that does not fit its hole stays chosen where the user said so, but not without a word;
// nor is one that went missing passed over.
QString PenPage::toolNote() const {
    const Job& job = m_workshop.job;
    const Settings& settings = currentSettings(job);
    if (!asksForDetails())
        return {};
    if (!isInList(m_workshop.tools, settings.intTool))
        return settings.intToolGone == 0
                   ? QString()
                   : tr("Tool T%1 is no longer in the tool list").arg(settings.intToolGone);
    const float diameter = toolAt(m_workshop.tools, settings.intTool).sngDiameter;
    if (!toolMissesHole(job, diameter))
        return {};
    return tr("Not the right size: %1 mm for a %2 mm hole")
        .arg(QString::fromStdString(formatFixed(diameter, 2)),
             QString::fromStdString(formatFixed(holeDiameter(job), 2)));
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
    const Settings& settings = job.answers.gudtSettings[job.position.gintCurrentSettings];
    if (currentPen(job).blnOmit)
        return false;
    return row != rowPeck || currentForm(job) == PenForm::cutting || settings.blnPeck;
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
        const QString text = QString::fromStdString(state.text[i]);
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

void PenPage::focusNextIfDone() {
    if (blnInputComplete())
        m_host.focusNext();
}

bool PenPage::SaveDetails() {
    bool kept = false;
    withErrorTrap(m_workshop.logger, {"SaveDetails", "modHpgl"}, [&] {
        if (!asksForDetails()) {
            kept = true;
            return;
        }
        Job& job = m_workshop.job;
        const PenForm form = currentForm(job);
        const auto refused =
            storeTexts(boxes().text, m_controls.chkPeck->isChecked(), form,
                       job.answers.gsngFeedFactor, m_workshop.tools, currentSettings(job));
        if (refused)
            refuse({*refused, PenFault::tooLarge});
        kept = !refused;
    });
    return kept;
}

void PenPage::storeTyped(Answers& answers) const {
    const Job& job = m_workshop.job;
    const PenForm form = currentForm(job);
    if (!asksForDetails() || m_shown != std::pair(job.position.gintCurrentSettings, form))
        return;
    PenTexts texts = boxes().text;
    const auto store = [&] {
        return storeTexts(texts, m_controls.chkPeck->isChecked(), form, job.answers.gsngFeedFactor,
                          m_workshop.tools, answers.gudtSettings[job.position.gintCurrentSettings]);
    };
    for (auto refused = store(); refused; refused = store())
        texts[*refused].clear();
}

std::vector<std::string> PenPage::typedTexts() const {
    const PenTexts typed = boxes().text;
    std::vector<std::string> texts{typed.begin(), typed.end()};
    texts.emplace_back(m_choice == machine ? machineWord : "");
    return texts;
}

void PenPage::typeAgain(const std::vector<std::string>& texts) {
    if (!asksForDetails() || texts.size() != penRowCount + 1)
        return;
    {
        const QScopedValueRollback hold(m_busy, true);
        PenBoxes state = boxes();
        std::copy_n(texts.begin(), penRowCount, state.text.begin());
        writeBoxes(state);
    }
    FinalDepth(0);
    if (texts.back() == machineWord)
        offerTool();
    focusFirstEmptyBox();
    focusNextIfDone();
}

void PenPage::edited(std::size_t row) {
    if (m_busy || !isCurrentStep())
        return;
    if (!m_edit || m_edit->row != row)
        m_edit = PenEdit{row, boxes().text};
    FinalDepth(static_cast<std::int16_t>(row));
}

void PenPage::left(std::size_t row) {
    if (isCurrentStep())
        FinalDepth(static_cast<std::int16_t>(row));
    m_edit.reset();
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
                             job.answers.gsngFeedFactor, m_edit);
            writeBoxes(state);
        }
        m_host.setNextEnabled(blnInputComplete());
        sayQuietly();
    });
}

void PenPage::sayQuietly() {
    QuietLine::Texts texts;
    if (asksForDetails()) {
        if (const QString missing = missingText(); !missing.isEmpty())
            texts.push_back({missing});
        // A tool that is too wide for its hole is told beside the tool.
        const auto sense = findingTexts(senseOfPage(), check::Kind::holeNarrow);
        texts.insert(texts.end(), sense.begin(), sense.end());
    }
    m_controls.quiet->say(texts);
}

QString PenPage::missingText() const {
    const Job& job = m_workshop.job;
    if (!isInList(m_workshop.tools, currentSettings(job).intTool))
        return m_choice == machine
                   ? tr("Choose a tool")
                   : tr("Choose above what is to be done with the %1").arg(pageSubjectText(job));
    const auto empty = firstEmptyRow(boxes());
    return empty ? emptyText(currentForm(job), *empty) : QString();
}

check::Findings PenPage::senseOfPage() const {
    const Job& job = m_workshop.job;
    const MachinedGroup group{job.position.gintCurrentPen, job.position.gintCurrentRadius,
                              job.position.gintCurrentSettings};
    check::Findings findings;
    Settings typed = currentSettings(job);
    if (!storeTexts(boxes().text, m_controls.chkPeck->isChecked(), currentForm(job),
                    job.answers.gsngFeedFactor, m_workshop.tools, typed))
        check::findSense(job, m_workshop.tools, group, typed, findings);
    return findings;
}

bool PenPage::blnInputComplete() {
    bool complete = false;
    quietly(m_inputCompleteFailed, "blnInputComplete", [&] {
        complete = !asksForDetails() || (!m_controls.toolLabels[toolNumber]->text().isEmpty() &&
                                         !firstEmptyRow(boxes()));
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
            refuse(*fault);
    });
    return valid;
}

void PenPage::refuse(const InputFault& fault) {
    NumberBox& box = *m_controls.txtDet[fault.row];
    box.setSelection(0, wholeText);
    m_workshop.messages.intStdMsgBox(faultText(currentForm(m_workshop.job), fault).toStdString(),
                                     styleExclamation, usualTitle);
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
        sayQuietly();
    });
}

} // namespace torvik
