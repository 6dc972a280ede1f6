// SPDX-License-Identifier: MIT
#include "sheet/dialog/job_sheet_dialog.h"

#include "base/files.h"
#include "base/whole_file.h"
#include "forms/file_choice.h"
#include "forms/taking_out.h"
#include "gcode/dialects.h"
#include "languages/shown_text.h"
#include "wizard/host/workshop.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>

namespace torvik {
namespace {

QPushButton* button(const QString& name, const QString& text, const QString& help) {
    auto* const made = new QPushButton(text);
    made->setObjectName(name);
    made->setToolTip(help);
    return made;
}

// "gear.plt" gives "gear.pdf" beside it.
QString proposedName(const Job& job) {
    const QFileInfo drawing(QString::fromStdString(job.drawing.gstrPlotFile));
    return drawing.path() + u'/' + drawing.completeBaseName() + QStringLiteral(".pdf");
}

} // namespace

JobSheetDialog::JobSheetDialog(Workshop& workshop, const JobSheet& sheet, QWidget* parent)
    : QDialog(parent), m_workshop(workshop), m_sheet(sheet) {
    setObjectName(QStringLiteral("frmSheet"));
    setWindowTitle(tr("Job Sheet"));
    const SheetContent& content = sheet.content();
    auto* const label = new QLabel(
        tr("One A4 page for the machine: %1, %2, %3.\nIt shows the drawing, the piece, the billet, "
           "the order, the tools and what the check found.")
            .arg(content.title, content.program, content.time));
    label->setObjectName(QStringLiteral("lblSheet"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(420);
    auto* const saving =
        button(QStringLiteral("cmdSheetSave"), tr("&Save as PDF…"), tr("Save the page as a file"));
    auto* const printing =
        button(QStringLiteral("cmdSheetPrint"), tr("&Print…"), tr("Print the page"));
    auto* const cancel =
        button(QStringLiteral("cmdSheetCancel"), tr("Cancel"), tr("Make no job sheet"));
    saving->setDefault(true);
    connect(saving, &QPushButton::clicked, this, [this] {
        if (save())
            accept();
    });
    connect(printing, &QPushButton::clicked, this, [this] {
        if (print())
            accept();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* const row = new QHBoxLayout;
    row->addStretch(1);
    for (QPushButton* const each : {saving, printing, cancel})
        row->addWidget(each);
    auto* const layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(label);
    layout->addLayout(row);
}

void JobSheetDialog::say(const QString& text) {
    m_workshop.messages.intStdMsgBox(text.toStdString(), styleExclamation, usualTitle);
}

bool JobSheetDialog::save() {
    QFileDialog dialog(this, tr("Save the job sheet"), QString(),
                       fileFilter(tr("PDF files"), {QStringLiteral("pdf")}));
    dialog.setObjectName(QStringLiteral("dlgSheet"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    const QFileInfo proposed(proposedName(m_workshop.job));
    dialog.setDirectory(proposed.path());
    dialog.selectFile(proposed.fileName());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    const auto file = chosenFile(dialog);
    std::error_code unknown;
    if (std::filesystem::equivalent(file, pathFromUtf8(m_workshop.job.drawing.gstrPlotFile),
                                    unknown)) {
        say(tr("This is the drawing itself. Please choose another name."));
        return false;
    }
    const QByteArray pdf = m_sheet.pdf();
    try {
        saveWhole(file, {pdf.constData(), static_cast<std::size_t>(pdf.size())});
    } catch (const FileError& error) {
        say(tr("The job sheet was not saved:\n%1").arg(QString::fromUtf8(error.what())));
        return false;
    }
    if (const QString takingOut = takingOutText({file}); !takingOut.isEmpty())
        say(takingOut);
    return true;
}

bool JobSheetDialog::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(tr("Job sheet %1").arg(m_sheet.content().title));
    printer.setPageSize(QPageSize(QPageSize::A4));
    QPrintDialog dialog(&printer, this);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    const bool isPrinted = m_sheet.paintOn(printer);
    if (!isPrinted)
        say(tr("The job sheet was not printed: the printer takes nothing."));
    return isPrinted;
}

void showJobSheet(Workshop& workshop, std::int16_t target, QWidget& window) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const JobSheet sheet(workshop.job, workshop.tools, dialectFor(target), workshop.logger);
    QGuiApplication::restoreOverrideCursor();
    if (sheet.failure().empty()) {
        JobSheetDialog(workshop, sheet, &window).exec();
        return;
    }
    workshop.messages.intStdMsgBox(JobSheetDialog::tr("There is no job sheet: %1.")
                                       .arg(shownText(sheet.failure()))
                                       .toStdString(),
                                   styleExclamation, usualTitle);
}

} // namespace torvik
