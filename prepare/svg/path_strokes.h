// SPDX-License-Identifier: MIT
// Painted shapes as strokes.
#pragma once

#include "prepare/strokes.h"

#include <vector>

class QPainterPath;
class QRectF;
class QTransform;

namespace torvik {

// One stroke for each part of the path. Curves that stand for a piece of a circle become arcs.
std::vector<Stroke> strokesOfPath(const QPainterPath& path, const QTransform& transform);

// A circle where the transform leaves it one, else the curves of an ellipse.
std::vector<Stroke> strokesOfEllipse(const QRectF& rect, const QTransform& transform);

} // namespace torvik
