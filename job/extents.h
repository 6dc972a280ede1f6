// SPDX-License-Identifier: MIT
// The rectangle that paths fill, in mm.
#pragma once

namespace torvik {

struct Drawing;
struct Path;

struct Extents {
    double minX;
    double minY;
    double maxX;
    double maxY;

    bool empty() const { return maxX < minX || maxY < minY; }
    double width() const { return maxX - minX; }
    double height() const { return maxY - minY; }
};

// Contains nothing; the first point makes it that point.
Extents noExtents();

// Widens the extents so that they hold the point, or the whole path (an arc with its bulges),
// with a margin (half the tool's width) all round.
void includePoint(Extents& extents, double x, double y, double margin = 0);
void includePath(Extents& extents, const Path& path, double margin = 0);

// What all paths of the drawing fill; empty where there is none.
Extents extentsOf(const Drawing& drawing);

// Whether an arc's two angles coincide, or differ by a whole turn, within 0.01 radian: such an arc
// is a full circle.
bool isFullTurn(const Path& arc);

} // namespace torvik
