// SPDX-License-Identifier: MIT
#include "preview/piece_picture.h"

#include "job/extents.h"
#include "job/records.h"
#include "preview/image_canvas.h"
#include "preview/stroke_painter.h"

#include <algorithm>

namespace torvik {
namespace {

// The works from the last to the first: what lies on top comes first.
class PiecePainter {
public:
    PiecePainter(QImage& image, const PictureView& view, const PieceScale& piece,
                 const std::stop_token& stop)
        : m_view(view), m_piece(piece), m_painter(canvasOf(image), view.lineWidth(), stop) {}

    // Shallow holes that deeper work runs over still show where they are, by a ring within their
    // edge.
    void rims(const std::vector<WorkOnPath>& works) {
        const double rim = m_view.lineWidth();
        std::for_each(works.rbegin(), works.rend(), [&](const WorkOnPath& one) {
            const auto& [path, work] = one;
            // The deepest work is painted last, so nothing lies over its holes.
            if (!work.blnHole || work.sngDepth >= m_piece.sngDeepest)
                return;
            const double radius = holeRadius(work) - rim / 2;
            setColour(work);
            if (radius > rim / 2) {
                m_points.clear();
                appendCircle(m_points, centre(path), radius);
                m_painter.line(m_points, rim);
            } else {
                m_painter.disc(centre(path), radius + rim / 2);
            }
        });
    }

    void cuts(const std::vector<WorkOnPath>& works) {
        std::for_each(works.rbegin(), works.rend(), [this](const WorkOnPath& one) {
            const auto& [path, work] = one;
            setColour(work);
            if (work.blnHole)
                m_painter.disc(centre(path), holeRadius(work));
            else
                cut(path, m_view.toolWidth(work.sngDiameter));
        });
    }

    void finish() { m_painter.finish(); }

private:
    void cut(const Path& path, double width) {
        const double radius = m_view.length(path.sngRadius);
        if (path.intType != straightLine && isFullTurn(path) && radius <= width / 2)
            return m_painter.disc(centre(path), radius + width / 2); // nothing is left in it
        m_points.clear();
        appendLine(m_points, path, m_view);
        m_painter.line(m_points, width);
    }
    void setColour(const Work& work) {
        m_painter.setColour(
            lngPlotColour(work.sngDepth, m_piece.sngShallowest, m_piece.sngDeepest));
    }
    ScreenPoint centre(const Path& path) const {
        return m_view.point(path.sngCentreX, path.sngCentreY);
    }
    double holeRadius(const Work& work) const { return m_view.toolWidth(work.sngDiameter) / 2; }

    const PictureView& m_view;
    const PieceScale& m_piece;
    StrokePainter m_painter;
    Points m_points;
};

} // namespace

void paintPiece(QImage& image, QSize size, const PictureView& view,
                const std::vector<WorkOnPath>& works, const PieceScale& piece,
                const std::stop_token& stop) {
    fitImage(image, size);
    PiecePainter painter(image, view, piece, stop);
    painter.rims(works);
    painter.cuts(works);
    painter.finish();
}

DepthList depthsOf(const std::vector<WorkOnPath>& works) {
    DepthList depths;
    for (const WorkOnPath& each : works)
        SaveDepth(depths, each.work.sngDepth);
    return depths;
}

} // namespace torvik
