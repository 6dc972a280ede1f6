// SPDX-License-Identifier: MIT
#include "wizard/skipped_line.h"

#include "base/error_trap.h"
#include "base/files.h"
#include "forms/help_key.h"
#include "prepare/dialog/frm_prepare.h"
#include "wizard/later.h"
#include "wizard/output/file_dialogs.h"
#include "wizard/output/own_settings.h"
#include "wizard/pens/pen_controls.h"
#include "wizard/status_lines.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QStyle>

namespace torvik {
namespace {

constexpr int helpPrepare = 20;

QString named(const std::filesystem::path& path) {
    return QString::fromStdString(utf8FromPath(path));
}

} // namespace

SkippedLine::SkippedLine(Workshop& workshop, StatusLines& lines) : m_workshop(workshop) {
    buildButton();
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_skipped);
    layout->addStretch(1);
    lines.addLine(*this);
}

void SkippedLine::buildButton() {
    m_skipped = new QPushButton;
    m_skipped->setObjectName(QStringLiteral("cmdSkipped"));
    m_skipped->setFlat(true);
    m_skipped->setMinimumWidth(1); // a long line does not widen the window
    m_skipped->setFocusPolicy(Qt::TabFocus);
    m_skipped->setCursor(Qt::PointingHandCursor);
    m_skipped->setToolTip(tr("Open the dialog with this drawing"));
    m_skipped->setProperty(helpContextProperty, helpPrepare);
    connect(m_skipped, &QPushButton::clicked, this,
            [this] { later(*this, [this] { PrepareDrawing(); }); });
}

void SkippedLine::PrepareDrawing(const std::filesystem::path& source) {
    withErrorTrap(m_workshop.logger, {"PrepareDrawing", "frmMain"}, [&] {
        std::filesystem::path toOpen;
        PrepareSurroundings surroundings;
        surroundings.helpContext = helpPrepare;
        surroundings.startFolder = pathFromUtf8(plotFolder(m_workshop.registry).toStdString());
        surroundings.rememberFolder = [this](const std::filesystem::path& folder) {
            rememberPlotFolder(m_workshop.registry, named(folder));
        };
        surroundings.agrees = [this](const std::string& question, const std::string& title) {
            return m_workshop.messages.intStdMsgBox(question, styleQuestion, title) == buttonYes;
        };
        surroundings.openResult = [&](const std::filesystem::path& drawing) { toOpen = drawing; };
        for (const Tool& tool : m_workshop.tools.gudtTools)
            if (tool.intNumber > 0 && !tool.strUnreadable)
                surroundings.tools.push_back(
                    {tool.intNumber, QString::fromStdString(tool.strType), tool.sngDiameter});
        surroundings.settings.read = [](const QString& key) { return ownSettings()->value(key); };
        surroundings.settings.save = saveOwnSetting;
        FrmPrepare dialog(std::move(surroundings), window());
        if (!source.empty())
            dialog.openSource(source);
        else if (m_workshop.job.gintWizardStep > 1)
            dialog.openSource(pathFromUtf8(m_workshop.job.drawing.gstrPlotFile));
        dialog.exec();
        // Two windows have gone at once; some window managers then give the keyboard to none.
        window()->activateWindow();
        if (!toOpen.empty())
            emit drawingPrepared(toOpen);
    });
}

void SkippedLine::show(long instructions) {
    if (m_skipped->icon().isNull() && instructions > 0) // looking it up would delay the start
        m_skipped->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    m_text =
        instructions == 1
            ? tr("1 instruction of this drawing is not read, so something may be missing. See "
                 "File ▸ Prepare a Drawing…")
            : tr("%1 instructions of this drawing are not read, so something may be missing. See "
                 "File ▸ Prepare a Drawing…")
                  .arg(instructions);
    m_skipped->setAccessibleName(m_text);
    breakLine();
    setVisible(instructions > 0);
}

// Two sentences are two lines where there is no room for one.
void SkippedLine::breakLine() {
    m_skipped->setText(m_text);
    if (m_skipped->sizeHint().width() > width())
        m_skipped->setText(QString(m_text).replace(QStringLiteral(". "), QStringLiteral(".\n")));
}

void SkippedLine::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    breakLine();
}

} // namespace torvik
