// SPDX-License-Identifier: MIT
#include "wizard/pens/pen_diagram.h"

#include <QPainter>

namespace torvik {
namespace {

// The picture's own units, fitted into the widget.
constexpr int pictureWidth = 120;
constexpr int pictureHeight = 90;
constexpr int surface = 36;

const QColor wood(222, 188, 140);
const QColor woodEdge(120, 84, 40);
const QColor steel(150, 158, 168);
const QColor steelEdge(70, 76, 84);

// The material with an opening down to `depth`, its bottom pointed where a drill made it.
void drawMaterial(QPainter& painter, int left, int right, int depth, int point) {
    const QPolygon outline({{2, surface},
                            {left, surface},
                            {left, depth},
                            {(left + right) / 2, depth + point},
                            {right, depth},
                            {right, surface},
                            {pictureWidth - 2, surface},
                            {pictureWidth - 2, pictureHeight - 2},
                            {2, pictureHeight - 2}});
    painter.setPen(QPen(woodEdge, 1.5));
    painter.setBrush(wood);
    painter.drawPolygon(outline);
}

void drawTool(QPainter& painter, int left, int right, int bottom, int point) {
    painter.setPen(QPen(steelEdge, 1.5));
    painter.setBrush(steel);
    painter.drawPolygon(QPolygon({{left, 4},
                                  {right, 4},
                                  {right, bottom},
                                  {(left + right) / 2, bottom + point},
                                  {left, bottom}}));
    for (int y = 10; y + 8 < bottom; y += 9)
        painter.drawLine(left, y + 6, right, y);
}

void drawCutting(QPainter& painter, const QColor& passes) {
    drawMaterial(painter, 30, 90, 72, 0);
    painter.setPen(QPen(passes, 1.5, Qt::DotLine));
    for (const int pass : {48, 60}) // the passes above the last
        painter.drawLine(30, pass, 90, pass);
    drawTool(painter, 30, 50, 72, 0);
}

void drawDrilling(QPainter& painter) {
    drawMaterial(painter, 51, 69, 70, 7);
    drawTool(painter, 51, 69, 58, 7);
}

} // namespace

PenDiagram::PenDiagram(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PenDiagram::setForm(PenForm form) {
    m_form = form;
    update();
}

QSize PenDiagram::sizeHint() const {
    return {pictureWidth, pictureHeight};
}

void PenDiagram::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width() / double{pictureWidth}, height() / double{pictureHeight});
    if (m_form == PenForm::drilling)
        drawDrilling(painter);
    else
        drawCutting(painter, palette().color(QPalette::WindowText));
}

} // namespace torvik
