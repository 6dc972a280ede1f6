// SPDX-License-Identifier: MIT
#include "preview/piece_picture.h"

#include "job/job.h"
#include "preview/groove_painter.h"
#include "preview/machined_path.h"

#include <vector>

namespace torvik {
namespace {

struct Hole {
    ScreenPoint centre;
    double radius; // image pixels
    float sngDepth;
};

} // namespace

DepthList paintPiece(QImage& image, QSize size, const PictureView& view, const Job& job,
                     const ToolList& tools, const PieceScale& piece) {
    clearImage(image, size);
    GroovePainter painter(image, view);
    DepthList depths;
    std::vector<Hole> coverable;
    const auto setColour = [&](float depth) {
        painter.setColour(lngPlotColour(depth, piece.sngShallowest, piece.sngDeepest));
    };
    for (const std::int16_t number : job.drawing.gintPathOrder) {
        const Path& path = job.drawing.gudtPaths[number];
        if (job.answers.gudtPens[path.intPen].blnOmit)
            continue;
        const MachinedPath machined = machinedPath(job, tools, path);
        const double width = view.toolWidth(machined.sngDiameter);
        SaveDepth(depths, machined.sngDepth);
        setColour(machined.sngDepth);
        if (!machined.blnHole) {
            painter.groove(path, width);
            continue;
        }
        const Hole hole{view.point(path.sngCentreX, path.sngCentreY), width / 2, machined.sngDepth};
        painter.disc(hole.centre, hole.radius);
        // The deepest work is painted last, so nothing lies over its holes.
        if (hole.sngDepth < piece.sngDeepest)
            coverable.push_back(hole);
    }
    // Shallow holes that deeper work runs over still show where they are, by a ring within their
    // edge.
    const double rim = view.lineWidth();
    for (const Hole& hole : coverable) {
        setColour(hole.sngDepth);
        painter.ring(hole.centre, hole.radius - rim / 2, rim);
    }
    return depths;
}

} // namespace torvik
