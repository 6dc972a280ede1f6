// SPDX-License-Identifier: MIT
#include "wizard/drawing_opener.h"

#include "answers/import_drawing.h"
#include "answers/program_folder.h"
#include "base/error_trap.h"
#include "base/files.h"
#include "forms/file_choice.h"
#include "prepare/dialog/dragged_source.h"
#include "wizard/output/file_dialogs.h"
#include "wizard/recent_drawings.h"
#include "wizard/skipped_line.h"
#include "wizard/wizard_driver.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <utility>

namespace torvik {
namespace {

// Milliseconds between two looks whether a dialog has gone. One dialog can follow another at once.
constexpr int lookTime = 100;

bool isForeign(const std::filesystem::path& drawing) {
    return isForeignDrawing(QString::fromStdString(utf8FromPath(drawing)));
}

} // namespace

DrawingOpener::DrawingOpener(Workshop& workshop, WizardDriver& driver, SkippedLine& skipped,
                             QWidget& window)
    : m_workshop(workshop), m_driver(driver), m_skipped(skipped), m_window(window) {}

void DrawingOpener::ReadFile() {
    withErrorTrap(m_workshop.logger, {"ReadFile", "modHpgl"}, [&] {
        if (!agreesToOpen())
            return;
        const auto drawing =
            strGetInputFile(m_workshop.registry,
                            {fileFilter(tr("SVG and DXF drawings"), foreignKinds())}, &m_window);
        if (isForeign(drawing))
            m_skipped.PrepareDrawing(drawing);
        else if (!drawing.empty())
            importFrom(drawing);
    });
}

void DrawingOpener::ReadFile(const std::filesystem::path& drawing) {
    withErrorTrap(m_workshop.logger, {"ReadFile", "modHpgl"}, [&] {
        if (isForeign(drawing))
            m_skipped.PrepareDrawing(drawing); // it asks when what it made is opened
        else if (agreesToOpen())
            importFrom(drawing);
    });
}

void DrawingOpener::ReadFileWhenFree(const std::filesystem::path& drawing) {
    if (std::exchange(m_waiting, drawing).empty())
        QTimer::singleShot(0, this, &DrawingOpener::openWaiting);
}

void DrawingOpener::openWaiting() {
    if (QApplication::activeModalWidget() != nullptr ||
        QApplication::activePopupWidget() != nullptr)
        QTimer::singleShot(lookTime, this, &DrawingOpener::openWaiting);
    else
        ReadFile(std::exchange(m_waiting, {}));
}

bool DrawingOpener::agreesToOpen() {
    return !m_workshop.job.output.gblnUnsaved ||
           m_workshop.messages.intStdMsgBox(tr("Are you sure you want to open a file\n"
                                               "without saving the current file as G-codes?")
                                                .toStdString(),
                                            styleQuestion,
                                            tr("Open file").toStdString()) == buttonYes;
}

void DrawingOpener::importFrom(const std::filesystem::path& drawing) {
    const auto fullPath = std::filesystem::absolute(drawing).make_preferred();
    m_driver.stopFlashing();
    m_driver.beforeImport();
    m_window.setWindowTitle(tr("Torvik - importing from HPGL file %1")
                                .arg(QString::fromStdString(utf8FromPath(fullPath))));
    const ImportResult result = importDrawing(m_workshop.job, fullPath, m_workshop.tools,
                                              savedSettingsFolder(), m_workshop.logger);
    if (!result.imported) {
        m_driver.refuseImport();
        return;
    }
    addRecentDrawing(fullPath);
    m_skipped.show(m_workshop.job.drawing.reading.lost);
    m_driver.layOutImported(result.saved.damage);
}

} // namespace torvik
