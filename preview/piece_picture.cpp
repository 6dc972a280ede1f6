// SPDX-License-Identifier: MIT
#include "preview/piece_picture.h"

#include "job/job.h"
#include "preview/machined_path.h"
#include "preview/outlines.h"
#include "preview/painting.h"

#include <vector>

namespace torvik {
namespace {

class PiecePainter {
public:
    PiecePainter(QImage& image, const PictureView& view) : m_painter(&image), m_view(view) {
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(Qt::NoPen);
    }

    void setColour(std::int32_t colour) {
        if (colour == m_colour)
            return;
        m_colour = colour;
        m_painter.setBrush(colourOf(colour));
    }

    void groove(const Path& path, float diameter) {
        visitGroove(path, m_view, m_view.toolWidth(diameter), [this](const Points& outline) {
            m_painter.drawPolygon(polygonOf(outline, m_polygon), Qt::WindingFill);
        });
    }

    void hole(const Path& path, float diameter) {
        discOutline(m_outline, centreOf(path), m_view.toolWidth(diameter) / 2);
        m_painter.drawConvexPolygon(polygonOf(m_outline, m_polygon));
    }

    // A ring that lies within the hole's edge.
    void rim(const Path& path, float diameter) {
        const double width = m_view.lineWidth();
        discOutline(m_outline, centreOf(path), (m_view.toolWidth(diameter) - width) / 2);
        m_painter.setPen(QPen(colourOf(m_colour), width, Qt::SolidLine, Qt::FlatCap));
        m_painter.drawPolyline(polygonOf(m_outline, m_polygon));
    }

private:
    ScreenPoint centreOf(const Path& path) const {
        return m_view.point(path.sngCentreX, path.sngCentreY);
    }

    QPainter m_painter;
    const PictureView& m_view;
    std::int32_t m_colour = -1;
    Points m_outline;
    QPolygonF m_polygon;
};

struct Hole {
    const Path* path;
    MachinedPath machined;
};

} // namespace

DepthList paintPiece(QImage& image, QSize size, const PictureView& view, const Job& job,
                     const ToolList& tools, const PieceScale& piece) {
    clearImage(image, size);
    PiecePainter painter(image, view);
    DepthList depths;
    std::vector<Hole> coverable;
    const auto setColour = [&](float depth) {
        painter.setColour(lngPlotColour(depth, piece.sngShallowest, piece.sngDeepest));
    };
    for (const std::int16_t number : job.gintPathOrder) {
        const Path& path = job.gudtPaths[number];
        if (job.gudtPens[path.intPen].blnOmit)
            continue;
        const MachinedPath machined = machinedPath(job, tools, path);
        SaveDepth(depths, machined.sngDepth);
        setColour(machined.sngDepth);
        if (!machined.blnHole) {
            painter.groove(path, machined.sngDiameter);
            continue;
        }
        painter.hole(path, machined.sngDiameter);
        // The deepest work is painted last, so nothing lies over its holes.
        if (machined.sngDepth < piece.sngDeepest)
            coverable.push_back({&path, machined});
    }
    // Shallow holes that deeper work runs over still show where they are.
    for (const Hole& hole : coverable) {
        setColour(hole.machined.sngDepth);
        painter.rim(*hole.path, hole.machined.sngDiameter);
    }
    return depths;
}

} // namespace torvik
