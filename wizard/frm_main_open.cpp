// SPDX-License-Identifier: MIT
// Opening a drawing: the question, the file dialog, the import and the layout after it.
#include "answers/import_drawing.h"
#include "answers/program_folder.h"
#include "base/error_trap.h"
#include "base/files.h"
#include "prepare/dialog/dragged_source.h"
#include "preview/preview_widget.h"
#include "wizard/colour_tree_view.h"
#include "wizard/frm_main.h"
#include "wizard/globals_page.h"
#include "wizard/output/file_dialogs.h"
#include "wizard/recent_drawings.h"

#include <QDragEnterEvent>
#include <QDropEvent>

namespace torvik {
namespace {

bool isPlotFile(const QString& name) {
    return name.endsWith(u".plt", Qt::CaseInsensitive);
}

} // namespace

void FrmMain::ReadFile() {
    withErrorTrap(m_workshop.logger, {"ReadFile", "modHpgl"}, [&] {
        if (!agreesToOpen())
            return;
        const auto drawing = strGetInputFile(m_workshop.registry, this);
        if (!drawing.empty())
            importFrom(drawing);
    });
}

void FrmMain::ReadFile(const std::filesystem::path& drawing) {
    withErrorTrap(m_workshop.logger, {"ReadFile", "modHpgl"}, [&] {
        if (agreesToOpen())
            importFrom(drawing);
    });
}

void FrmMain::ReadFileLater(const std::filesystem::path& drawing) {
    later([this, drawing] { ReadFile(drawing); });
}

bool FrmMain::agreesToOpen() {
    return !m_workshop.job.output.gblnUnsaved ||
           m_workshop.messages.intStdMsgBox("Are you sure you want to open a file\n"
                                            "without saving the current file as G-codes?",
                                            styleQuestion, "Open file") == buttonYes;
}

void FrmMain::importFrom(const std::filesystem::path& drawing) {
    Job& job = m_workshop.job;
    const auto fullPath = std::filesystem::absolute(drawing).make_preferred();
    m_flash.stop();
    setWindowTitle(tr("Torvik - importing from HPGL file %1")
                       .arg(QString::fromStdString(utf8FromPath(fullPath))));
    const ImportResult result =
        importDrawing(job, fullPath, m_workshop.tools, savedSettingsFolder(), m_workshop.logger);
    if (!result.imported) {
        returnToStart();
        return;
    }
    m_kept.giveBack(job);
    CreateTree(job.answers, job.position, m_workshop.logger);
    addRecentDrawing(fullPath);
    showSkipped(job.drawing.reading.lost);
    layOutImported();
}

void FrmMain::layOutImported() {
    showStep(2);
    updateTree();
    m_preview->GetScale();
    PlotLines();
    m_globals->RestoreGlobals();
    m_globals->enter();
    if (m_workshop.job.drawing.gintPathCount == 0)
        warnOfEmptyDrawing();
}

void FrmMain::warnOfEmptyDrawing() {
    m_workshop.messages.intStdMsgBox("This drawing holds nothing that can be milled:\n" +
                                         m_workshop.job.drawing.gstrPlotFile,
                                     styleExclamation, usualTitle);
}

void FrmMain::returnToStart() {
    Job& job = m_workshop.job;
    ClearData(job);
    job.drawing.gstrPlotFile.clear();
    setWindowTitle(QString::fromUtf8(usualTitle));
    updateTree();
    clearPreview();
    showStep(1);
}

void FrmMain::dragEnterEvent(QDragEnterEvent* event) {
    if (!draggedSource(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void FrmMain::dropEvent(QDropEvent* event) {
    const QString name = draggedSource(*event->mimeData());
    if (name.isEmpty())
        return;
    event->acceptProposedAction();
    const auto drawing = pathFromUtf8(name.toStdString());
    if (isPlotFile(name))
        ReadFileLater(drawing);
    else
        later([this, drawing] { PrepareDrawing(drawing); });
}

} // namespace torvik
