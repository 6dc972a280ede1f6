// SPDX-License-Identifier: MIT
#include "preview/piece_picture.h"

#include "job/records.h"
#include "preview/groove_painter.h"

namespace torvik {
namespace {

struct Hole {
    ScreenPoint centre;
    double radius; // image pixels
    float sngDepth;
};

} // namespace

void paintPiece(QImage& image, QSize size, const PictureView& view,
                const std::vector<WorkOnPath>& works, const PieceScale& piece) {
    clearImage(image, size);
    GroovePainter painter(image, view);
    std::vector<Hole> coverable;
    const auto setColour = [&](float depth) {
        painter.setColour(lngPlotColour(depth, piece.sngShallowest, piece.sngDeepest));
    };
    for (const auto& [path, work] : works) {
        const double width = view.toolWidth(work.sngDiameter);
        setColour(work.sngDepth);
        if (!work.blnHole) {
            painter.groove(path, width);
            continue;
        }
        const Hole hole{view.point(path.sngCentreX, path.sngCentreY), width / 2, work.sngDepth};
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
}

DepthList depthsOf(const std::vector<WorkOnPath>& works) {
    DepthList depths;
    for (const WorkOnPath& each : works)
        SaveDepth(depths, each.work.sngDepth);
    return depths;
}

} // namespace torvik
