// SPDX-License-Identifier: MIT
#include "wizard/output/output_page.h"

#include "base/error_trap.h"
#include "base/files.h"
#include "forms/form_fields.h"
#include "forms/help_key.h"
#include "gcode/comment_check.h"
#include "gcode/dialects.h"
#include "preview/cut/cut_picture.h"
#include "preview/cut/frm_cut.h"
#include "preview/cut/tried_piece.h"
#include "tools/settings_file_reader.h"
#include "wizard/host/workshop.h"
#include "wizard/output/drive_a.h"
#include "wizard/output/own_settings.h"
#include "wizard/output/tried_panel.h"

#include <QButtonGroup>
#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace torvik {
namespace {

constexpr int helpOutput = 6;
const QString targetKey = QStringLiteral("OutputTarget");

// What the target's program becomes: a numbered file on the diskette, or a file anywhere.
QString whereItGoes(const Dialect& dialect) {
    if (dialect.needsNumber())
        return OutputPage::tr("on the diskette, as a:\\%1…")
            .arg(QString::fromUtf8(dialect.diskettePrefix));
    return OutputPage::tr("a file (.%1) where you choose")
        .arg(QString::fromUtf8(dialect.extension));
}

int usualTarget() {
    for (const Dialect& dialect : dialects())
        if (dialect.isUsual)
            return dialect.code;
    return 0;
}

// "A and B": the targets whose programs go to the diskette.
QString targetsOfDiskette() {
    QStringList names;
    for (const Dialect& dialect : dialects())
        if (dialect.needsNumber())
            names.append(QString::fromUtf8(dialect.name));
    return names.join(OutputPage::tr(" and "));
}

QString faultText(const CommentFault& fault) {
    const QString field = fault.isTool ? OutputPage::tr("Type of tool %1").arg(fault.field.c_str())
                                       : OutputPage::tr(fault.field.c_str());
    QStringList lines;
    if (fault.endsComment)
        lines.append(OutputPage::tr("a round bracket ends the comment, and the control may read "
                                    "the rest as statements"));
    if (!fault.lost.empty())
        lines.append(OutputPage::tr("a program cannot hold %1, ? stands there instead")
                         .arg(QString::fromStdString(fault.lost)));
    return QStringLiteral("%1, \"%2\": %3")
        .arg(field, QString::fromStdString(fault.text), lines.join(QStringLiteral("; ")));
}

} // namespace

OutputPage::OutputPage(Workshop& workshop, CutPicture& picture, QWidget* parent)
    : QWidget(parent), m_workshop(workshop), m_picture(picture), m_panel(new TriedPanel) {
    setObjectName(QStringLiteral("picOutput"));
    setProperty(helpContextProperty, helpOutput);
    auto* const box = new QGroupBox(tr("Write the program for"));
    box->setObjectName(QStringLiteral("fraOutput"));
    auto* const options = new QGridLayout(box);
    options->setColumnStretch(1, 1);
    options->setHorizontalSpacing(16);
    m_targets = new QButtonGroup(this);
    const int remembered = ownSettings()->value(targetKey, usualTarget()).toInt();
    for (const Dialect& dialect : dialects()) {
        // The access key is the code: two names begin alike.
        auto* const option = new QRadioButton(
            QStringLiteral("&%1  %2").arg(dialect.code).arg(QString::fromUtf8(dialect.name)));
        option->setObjectName(QStringLiteral("optOutput%1").arg(dialect.code));
        option->setAccessibleName(QString::fromUtf8(dialect.name));
        option->setToolTip(QString::fromUtf8(dialect.name) + QStringLiteral(": ") +
                           whereItGoes(dialect));
        m_targets->addButton(option, dialect.code);
        option->setChecked(dialect.code == remembered || m_targets->checkedButton() == nullptr);
        options->addWidget(option, dialect.code - 1, 0);
        auto* const where = new QLabel(whereItGoes(dialect));
        where->setWordWrap(true);
        options->addWidget(where, dialect.code - 1, 1);
    }
    auto* const layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(makePageTitle(tr("Output")));
    layout->addWidget(box);
    m_comments = makeWarning(QStringLiteral("lblComments"));
    layout->addWidget(m_comments);
    layout->addWidget(m_panel);
    layout->addWidget(buildDrive());
    layout->addStretch(1);
    connect(m_targets, &QButtonGroup::idClicked, this, [this] {
        warnOfComments();
        if (m_trial.target() != target())
            beginTrial();
    });
    connect(&m_trial, &TrialRun::ended, this, &OutputPage::trialEnded);
    connect(
        m_panel, &TriedPanel::lookWanted, this, [this](quint32 line) { look(line); },
        Qt::QueuedConnection);
    showDrive();
}

void OutputPage::beginTrial() {
    m_panel->showBusy();
    m_picture.setWork(nullptr);
    m_work.reset();
    m_trial.begin(m_workshop.job, m_workshop.tools, target());
}

void OutputPage::trialEnded() {
    withErrorTrap(m_workshop.logger, {"trialEnded", "frmMain"}, [&] {
        TriedProgram& tried = *m_trial.tried();
        m_panel->showTried(tried, m_workshop.job.answers.gstrHeader[headerPartName],
                           m_trial.cause());
        if (tried.moves.empty())
            return;
        m_work = std::make_shared<CutWork>(pieceOf(tried, m_workshop.job, m_workshop.tools));
        m_picture.setWork(m_work);
        m_panel->setPieceShown(true);
    });
}

void OutputPage::look(quint32 line) {
    if (!m_work)
        return;
    FrmCut piece(m_work, this);
    if (line > 0)
        piece.showLine(line);
    piece.exec();
}

QWidget* OutputPage::buildDrive() {
    auto* const box = new QGroupBox(tr("Diskette drive"));
    box->setObjectName(QStringLiteral("fraDriveA"));
    m_drive = new QLabel;
    m_drive->setObjectName(QStringLiteral("lblDriveA"));
    m_drive->setWordWrap(true);
    auto* const change = new QPushButton(tr("&Change…"));
    change->setObjectName(QStringLiteral("cmdDriveA"));
    change->setAccessibleName(tr("Change where drive A: leads"));
    change->setToolTip(tr("Choose the folder that stands for the diskette drive, for example a "
                          "memory stick"));
    connect(change, &QPushButton::clicked, this, [this] {
        QMetaObject::invokeMethod(
            this, [this] { changeDrive(); }, Qt::QueuedConnection);
    });
    auto* const layout = new QHBoxLayout(box);
    layout->addWidget(m_drive, 1);
    layout->addWidget(change, 0, Qt::AlignTop);
    return box;
}

void OutputPage::changeDrive() {
    QFileDialog dialog(this, tr("Choose the folder that stands for drive A:"),
                       QString::fromStdString(utf8FromPath(driveA(m_workshop.registry))));
    dialog.setObjectName(QStringLiteral("dlgDriveA"));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::string folder =
        QDir::toNativeSeparators(dialog.selectedFiles().constFirst()).toStdString();
    if (folder.size() > Registry::maxValueBytes) {
        m_workshop.messages.intStdMsgBox(
            tr("The folder's name is too long to be remembered, please "
               "choose another:")
                    .toStdString() +
                "\n" + folder,
            styleExclamation, usualTitle);
        return;
    }
    if (!m_workshop.registry.RegistryValuePut(driveASetting, folder))
        m_workshop.messages.intStdMsgBox(
            tr("The folder could not be stored in %1.\nIt will not be remembered: it lasts until "
               "Torvik ends.")
                .arg(QString::fromStdString(registryPlace()))
                .toStdString(),
            styleExclamation, usualTitle);
    showDrive();
}

void OutputPage::showDrive() {
    const QString folder = QString::fromStdString(utf8FromPath(driveA(m_workshop.registry)));
    if (folder.isEmpty())
        m_drive->setText(tr("a:\\ leads nowhere yet. %1 programs need a folder for it.")
                             .arg(targetsOfDiskette()));
    else if (folder == QStringLiteral("a:\\"))
        m_drive->setText(tr("a:\\ is the diskette drive itself"));
    else
        m_drive->setText(tr("a:\\ is %1").arg(breakablePath(folder)));
}

void OutputPage::warnOfComments() {
    QStringList lines;
    withErrorTrap(m_workshop.logger, {"warnOfComments", "frmMain"}, [&] {
        for (const CommentFault& fault :
             commentFaults(m_workshop.job, m_workshop.tools, dialectFor(target())))
            lines.append(faultText(fault));
    });
    showWarning(*m_comments, lines.join(u'\n'));
}

std::int16_t OutputPage::target() const {
    return static_cast<std::int16_t>(m_targets->checkedId());
}

void OutputPage::rememberTarget() {
    saveOwnSetting(targetKey, target());
}

void OutputPage::enter() {
    showDrive();
    warnOfComments();
    beginTrial();
    m_targets->checkedButton()->setFocus();
}

void OutputPage::leave() {
    m_trial.cancel();
    m_picture.setWork(nullptr);
    m_work.reset();
}

} // namespace torvik
