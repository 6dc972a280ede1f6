// SPDX-License-Identifier: MIT
#include "sheet/job_sheet.h"

#include "answers/tool_check.h"
#include "base/error_trap.h"
#include "preview/cut/tried_piece.h"
#include "sheet/sheet_pictures.h"
#include "trial/trial.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

namespace torvik {
namespace {

constexpr double dotsPerMm = 300 / 25.4;
constexpr double ratio = 2.6; // dots for a pixel of a screen

PictureSize pictureSize() {
    return {QSize(static_cast<int>(sheetPictureWidth * dotsPerMm),
                  static_cast<int>(sheetPictureHeight * dotsPerMm)),
            ratio};
}

std::string failureOf(const TriedProgram& tried) {
    if (tried.state == TriedProgram::State::tooLong)
        return "the program is too long for a job sheet";
    return tried.isTried() ? std::string() : std::string("the program cannot be made");
}

} // namespace

bool isReadyForSheet(const Job& job, const ToolList& tools) {
    bool isReady = job.drawing.gintPathCount > 0;
    bool hasGroup = false;
    const auto look = [&](const MachinedGroup& group) {
        hasGroup = true;
        const Settings& settings = job.answers.gudtSettings[group.settings];
        isReady = isReady && settings.blnComplete && settings.sngDepth > 0;
    };
    visitMachinedGroups(job, look);
    return isReady && hasGroup && !groupWithoutTool(job, tools);
}

JobSheet::JobSheet(const Job& job, const ToolList& tools, const Dialect& dialect, Logger& logger) {
    m_failure = "the job sheet cannot be made";
    withErrorTrap(logger, {"JobSheet", "sheet"}, [&] {
        TriedProgram tried = tryProgram(job, tools, dialect, 1, logger);
        m_failure = failureOf(tried);
        if (!m_failure.empty())
            return;
        m_failure = "the job sheet cannot be made";
        const CutPiece piece = pieceOf(tried, job, tools);
        const Clamping clamping = clampingOf(piece);
        m_content = sheetContent(job, dialect, tried, clamping);
        m_pictures = {drawingPicture(job, pictureSize(), logger),
                      cutPicture(piece, clamping, pictureSize())};
        m_failure.clear();
    });
}

QByteArray JobSheet::pdf() const {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setTitle(m_content.title);
    writer.setResolution(300);
    paintOn(writer);
    return bytes.data();
}

bool JobSheet::paintOn(QPagedPaintDevice& device) const {
    device.setPageSize(QPageSize(QPageSize::A4));
    device.setPageOrientation(QPageLayout::Portrait);
    device.setPageMargins(QMarginsF(0, 0, 0, 0));
    QPainter painter(&device);
    if (!painter.isActive())
        return false;
    // A printer may begin its page inside the paper.
    const QRect page = device.pageLayout().paintRectPixels(device.logicalDpiX());
    painter.translate(-page.left(), -page.top());
    painter.scale(device.logicalDpiX() / 254.0, device.logicalDpiY() / 254.0);
    paintSheet(painter, m_content, m_pictures);
    return painter.end();
}

} // namespace torvik
