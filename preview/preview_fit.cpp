// SPDX-License-Identifier: MIT
#include "preview/preview_fit.h"

#include "base/error_trap.h"
#include "base/numbers.h"
#include "job/job.h"
#include "preview/machined_path.h"

#include <algorithm>

namespace torvik {
namespace {

constexpr double farAway = 1000;         // mm, where the search for the extremes starts
constexpr double factorOfNoSpan = 99999; // a drawing of no width leaves the scale to its height

float available(float frame) {
    return toSingle(std::max(frame - 2 * marginTwips, twipsPerPixel));
}

float factor(float available, double span) {
    return toSingle(span == 0 ? factorOfNoSpan : available / span);
}

// The extremes as they are stored; those of an empty drawing stay empty.
Extents stored(const Extents& found) {
    if (found.empty())
        return found;
    return {toSingle(std::min(found.minX, farAway)), toSingle(std::min(found.minY, farAway)),
            toSingle(std::max(found.maxX, -farAway)), toSingle(std::max(found.maxY, -farAway))};
}

PreviewFit fitExtents(const Extents& extents, FrameSize frame) {
    if (extents.empty())
        return {};
    const float horizontal = factor(available(frame.sngWidth), extents.width());
    const float vertical = factor(available(frame.sngHeight), extents.height());
    PreviewFit fit;
    fit.gsngScale = std::min(vertical, horizontal);
    fit.gsngOffsetX = toSingle(fit.gsngScale * extents.minX - marginTwips);
    fit.gsngOffsetY = toSingle(fit.gsngScale * extents.minY - marginTwips);
    return fit;
}

PictureBox pictureBox(const Extents& extents, const PreviewFit& fit, FrameSize frame) {
    if (extents.empty())
        return {0, 0, frame.sngWidth, frame.sngHeight};
    PictureBox box;
    box.sngWidth = toSingle(2 * marginTwips + extents.width() * fit.gsngScale);
    box.sngHeight = toSingle(2 * marginTwips + extents.height() * fit.gsngScale);
    box.sngLeft = toSingle((double{frame.sngWidth} - box.sngWidth) / 2);
    box.sngTop = toSingle((double{frame.sngHeight} - box.sngHeight) / 2);
    return box;
}

void includeWork(PieceScale& piece, const Path& path, const Work& work) {
    const double toolRadius = work.sngDiameter / 2.0;
    if (work.blnHole)
        includePoint(piece.extents, path.sngCentreX, path.sngCentreY, toolRadius);
    else
        includePath(piece.extents, path, toolRadius);
    piece.sngShallowest = std::min(piece.sngShallowest, work.sngDepth);
    piece.sngDeepest = std::max(piece.sngDeepest, work.sngDepth);
}

void includeMachined(PieceScale& piece, const Answers& answers, const ToolList& tools,
                     const Path& path) {
    if (answers.gudtPens[path.intPen].blnOmit)
        includePath(piece.extents, path);
    else
        for (const Work& work : workOn(answers, tools, path))
            includeWork(piece, path, work);
}

} // namespace

bool GetScale(const Drawing& drawing, FrameSize frame, LineScale& scale, Logger& logger) {
    scale = {};
    scale.picture = pictureBox(scale.extents, scale.fit, frame);
    return withErrorTrap(logger, {"GetScale", "modHpgl"}, [&] {
        LineScale found;
        found.extents = stored(extentsOf(drawing));
        refit(found, frame);
        scale = found;
    });
}

bool GetPieceScale(const Drawing& drawing, const Answers& answers, const ToolList& tools,
                   FrameSize frame, PieceScale& piece, Logger& logger) {
    return withErrorTrap(logger, {"GetPieceScale", "modHpgl"}, [&] {
        PieceScale found;
        for (const Path& path : drawing.gudtPaths)
            includeMachined(found, answers, tools, path);
        found.extents = stored(found.extents);
        refit(found, frame);
        piece = found;
    });
}

void refit(LineScale& scale, FrameSize frame) {
    scale.fit = fitExtents(scale.extents, frame);
    scale.picture = pictureBox(scale.extents, scale.fit, frame);
}

} // namespace torvik
