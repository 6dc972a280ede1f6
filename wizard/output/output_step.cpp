// SPDX-License-Identifier: MIT
#include "wizard/output/output_step.h"

#include "answers/job_checks.h"
#include "answers/program_folder.h"
#include "answers/put_saved_data.h"
#include "answers/tool_check.h"
#include "base/error_trap.h"
#include "base/errors.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"
#include "check/time/program_time.h"
#include "forms/taking_out.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "gcode/program_size.h"
#include "languages/shown_text.h"
#include "wizard/host/group_name.h"
#include "wizard/host/workshop.h"
#include "wizard/output/drive_a.h"
#include "wizard/output/file_dialogs.h"
#include "wizard/output/finding_rows.h"
#include "wizard/output/frm_danger.h"
#include "wizard/output/frm_menu.h"
#include "wizard/output/frm_output.h"
#include "wizard/output/trial_run.h"
#include "wizard/output/writing_dialog.h"

#include <QGuiApplication>

#include <cmath>
#include <vector>

namespace torvik {
namespace {

// The hour-glass while a program is written.
class BusyPointer {
public:
    BusyPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

} // namespace

bool asksForTool(Workshop& workshop) {
    const auto group = groupWithoutTool(workshop.job, workshop.tools);
    if (group)
        workshop.messages.intStdMsgBox(
            OutputStep::tr("Please choose a tool for %1")
                .arg(groupName(workshop.job.answers.gudtPens[group->pen], group->radius))
                .toStdString(),
            styleExclamation, usualTitle);
    return group.has_value();
}

AfterOutput OutputStep::run(std::int16_t target) {
    AfterOutput after = AfterOutput::nothing;
    withErrorTrap(m_workshop.logger, {"Wizard", "frmMain"}, [&] {
        if (asksForTool(m_workshop))
            return;
        const Dialect& dialect = dialectFor(target);
        const ProgramSize size = programSize(m_workshop.job, m_workshop.tools, dialect);
        if (!agreesToSize(size) || !agreesToFindings(target))
            return;
        m_lines = size.lines;
        if (!dialect.needsNumber()) {
            after = WriteFile(target, 0);
            return;
        }
        for (;;) {
            const std::int16_t number = askForNumber(dialect);
            if (number == 0 || !waitForDiskette())
                return;
            if (mayOverwrite(proposedFileName(dialect, {}, number))) {
                after = WriteFile(target, number);
                return;
            }
        }
    });
    return after;
}

bool OutputStep::agreesToSize(const ProgramSize& size) {
    if (!size.isLong())
        return true;
    const auto& [pen, radius, settings] = size.longest.value();
    const QString mostOfIt = groupName(m_workshop.job.answers.gudtPens[pen], radius);
    if (size.isTooLong()) {
        m_workshop.messages.intStdMsgBox(
            tr("This program would have more than %1 lines, most of them for %2, so it is not "
               "written.\nLarger steps or a smaller depth make it shorter.")
                .arg(mostLines)
                .arg(mostOfIt)
                .toStdString(),
            styleExclamation, usualTitle);
        return false;
    }
    return m_workshop.messages.intStdMsgBox(
               tr("This program will have %1 lines (about %2 MB) in %3 depth passes and pecks, "
                  "most of them for %4.\nDo you want to write it?")
                   .arg(size.lines)
                   .arg(size.megabytes())
                   .arg(size.steps)
                   .arg(mostOfIt)
                   .toStdString(),
               styleQuestionDefaultNo, usualTitle) == buttonYes;
}

bool OutputStep::agreesToFindings(std::int16_t target) {
    if (m_trial.target() != target)
        m_trial.begin(m_workshop.job, m_workshop.tools, target);
    if (!m_trial.finish(m_window))
        return false;
    const QStringList texts = namedTexts(m_trial.tried()->findings);
    return texts.isEmpty() || FrmDanger(texts, &m_window).exec() == QDialog::Accepted;
}

std::int16_t OutputStep::askForNumber(const Dialect& dialect) {
    for (;;) {
        FrmOutput dialog(dialect, &m_window);
        dialog.exec();
        if (dialog.tag().empty())
            return 0;
        try {
            const std::string typed = dialog.tag();
            const double number = leadingNumber(typed);
            if (isNumber(trimBlanks(typed)) && number >= 1 && number == std::trunc(number))
                return toInt16(number);
        } catch (const Overflow&) {
            // Told below, as a number that is less than one.
        }
        m_workshop.messages.intStdMsgBox(
            tr("The program number may be 1 to 32767 only").toStdString(), styleExclamation,
            usualTitle);
    }
}

bool OutputStep::blnDisketteReady() const {
    bool ready = false;
    withErrorTrap(m_workshop.logger, {"blnDisketteReady", "modHpgl"},
                  [&] { ready = isDriveReady(driveA(m_workshop.registry)); });
    return ready;
}

bool OutputStep::waitForDiskette() {
    while (!blnDisketteReady())
        if (m_workshop.messages.intStdMsgBox(
                tr("Please put a diskette into Drive A:").toStdString(), styleRetryExclamation,
                usualTitle) != buttonRetry)
            return false;
    return true;
}

bool OutputStep::mayOverwrite(const std::string& name) {
    // The text beside the program may be another's, where its program is gone.
    const std::string sideText = utf8FromPath(sideTextPath(pathFromUtf8(name)));
    for (const std::string& existing : {name, sideText})
        if (std::filesystem::exists(driveA(m_workshop.registry) / pathFromUtf8(existing)))
            return m_workshop.messages.intStdMsgBox(
                       tr("A file named %1 already exists on the diskette\n"
                          "Do you want to overwrite it?")
                           .arg(QString::fromStdString(existing))
                           .toStdString(),
                       styleQuestion, usualTitle) == buttonYes;
    return true;
}

AfterOutput OutputStep::WriteFile(std::int16_t target, std::int16_t number) {
    AfterOutput after = AfterOutput::nothing;
    withErrorTrap(m_workshop.logger, {"WriteFile", "modHpgl"}, [&] {
        const Dialect& dialect = dialectFor(target);
        const std::string proposed =
            proposedFileName(dialect, m_workshop.job.drawing.gstrPlotFile, number);
        const auto file =
            dialect.needsNumber()
                ? driveA(m_workshop.registry) / pathFromUtf8(proposed)
                : strGetOutputFile(m_workshop.registry, m_workshop.messages, proposed, dialect,
                                   pathFromUtf8(m_workshop.job.drawing.gstrPlotFile), &m_window);
        if (file.empty() || !write(target, number, file))
            return;
        if (PutSavedData(m_workshop.job, m_workshop.tools, savedSettingsFolder(),
                         m_workshop.logger))
            m_answersKept();
        m_workshop.job.output.gblnUnsaved = false;
        after = showMenu(dialect.needsNumber() ? "a:\\" + proposed : utf8FromPath(file),
                         filesOf(dialect, file));
    });
    return after;
}

bool OutputStep::write(std::int16_t target, std::int16_t number,
                       const std::filesystem::path& file) {
    trimHeader(m_workshop.job.answers);
    for (;;) {
        WriteOutcome outcome{};
        {
            const BusyPointer busy;
            WritingDialog progress(m_lines, &m_window);
            outcome = torvik::WriteFile(m_workshop.job, m_workshop.tools, target, number, file,
                                        m_workshop.logger,
                                        [&](std::int64_t lines) { return progress.goOn(lines); });
        }
        if (outcome != WriteOutcome::notOpened)
            return outcome == WriteOutcome::written;
        if (m_workshop.messages.intStdMsgBox(
                tr("Please make sure the diskette is writable").toStdString(),
                styleRetryExclamation, usualTitle) != buttonRetry)
            return false;
    }
}

AfterOutput OutputStep::showMenu(const std::string& writtenFile,
                                 const std::vector<std::filesystem::path>& files) {
    const TriedProgram* const tried = m_trial.tried();
    const QString minutes = tried != nullptr && tried->isTried()
                                ? shownText(check::timeText(tried->minutes))
                                : QString();
    FrmMenu menu(QString::fromStdString(writtenFile), takingOutText(files), minutes,
                 QString::fromStdString(utf8FromPath(files.front().parent_path())), &m_window);
    menu.exec();
    const std::string word = menu.tag();
    if (word == "Open")
        return AfterOutput::openOther;
    if (word == "Save")
        return AfterOutput::saveOther;
    return word == "Close" ? AfterOutput::close : AfterOutput::nothing;
}

} // namespace torvik
