// SPDX-License-Identifier: MIT
// What is drawn over the picture of a field: the billet's edge, sizes and zero point, paths that
// are not machined, the way of one move, the tool.
#pragma once

#include "preview/cut/cut_piece.h"
#include "preview/cut/cut_view.h"

#include <QPainter>

namespace torvik {

struct CutToolPlace {
    check::Place place;
    double radius = 0; // mm
};

// "12.5": at most two decimals.
QString shortNumber(double number);

// Lengths and places as these windows say them: "12.5 mm".
QString lengthText(double length);

class CutPainting {
public:
    CutPainting(QPainter& painter, const CutView& view);

    void billet(const CutBillet& billet);
    void zeroPoint();
    void uncut(const std::vector<QPolygonF>& paths);
    void move(const check::Move& move, double radius);
    void tool(const CutToolPlace& tool);

private:
    QPolygonF onScreen(const QPolygonF& places) const;
    void sizes(const QRectF& edge, const CutBillet& billet);

    QPainter& m_painter;
    const CutView& m_view;
};

} // namespace torvik
