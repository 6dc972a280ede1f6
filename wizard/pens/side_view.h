// SPDX-License-Identifier: MIT
// What pictures of the work seen from the side have in common: their colours, and arrows and words
// that can be seen on everything in them.
#pragma once

#include <QColor>
#include <QPointF>
#include <QString>

class QPainter;
class QPainterPath;

namespace torvik::side_view {

inline const QColor wood(222, 188, 140);
inline const QColor woodEdge(120, 84, 40);
inline const QColor steel(150, 158, 168);
inline const QColor steelEdge(70, 76, 84);
inline const QColor mark(0, 70, 160); // of what the picture points at

// A tool from `top` to `bottom` (a drill's point lies `point` below it), with its flutes.
struct Tool {
    int left;
    int right;
    int top;
    int bottom;
    int point = 0;
};
void drawTool(QPainter& painter, const Tool& tool);

// A line in the mark's colour with a light edge.
void drawMark(QPainter& painter, const QPainterPath& line);
// An arrow that points at `to`, and from there back at `from` where it measures a length.
enum class Heads { one, both };
void drawArrow(QPainter& painter, QPointF from, QPointF to, Heads heads);
// A word in the mark's colour with a light edge; `left` is the start of its base line.
void drawWord(QPainter& painter, QPointF left, const QString& word);

} // namespace torvik::side_view
