// SPDX-License-Identifier: MIT
#include "job/extents.h"

#include "job/arc_geometry.h"
#include "job/job.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace torvik {
namespace {

constexpr double quarterTurn = 1.570796326795;
constexpr double sameAngle = 0.01;

// Whether the arc, counter-clockwise from its first to its second angle, passes the angle.
bool passes(const Path& arc, double angle) {
    if (isFullTurn(arc))
        return true;
    const double from = arc.sngAngleFrom;
    const double to = arc.sngAngleTo < from ? arc.sngAngleTo + fullTurnRadians : arc.sngAngleTo;
    return (from <= angle && angle <= to) || angle + fullTurnRadians <= to;
}

} // namespace

Extents noExtents() {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    return {infinity, infinity, -infinity, -infinity};
}

void includePoint(Extents& extents, double x, double y, double margin) {
    extents.minX = std::min(extents.minX, x - margin);
    extents.minY = std::min(extents.minY, y - margin);
    extents.maxX = std::max(extents.maxX, x + margin);
    extents.maxY = std::max(extents.maxY, y + margin);
}

void includePath(Extents& extents, const Path& path, double margin) {
    includePoint(extents, path.sngStartX, path.sngStartY, margin);
    includePoint(extents, path.sngEndX, path.sngEndY, margin);
    if (path.intType == straightLine)
        return;
    constexpr int directions[4][2] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
    for (int i = 0; i < 4; ++i)
        if (passes(path, i * quarterTurn))
            includePoint(extents, path.sngCentreX + double{path.sngRadius} * directions[i][0],
                         path.sngCentreY + double{path.sngRadius} * directions[i][1], margin);
}

Extents extentsOf(const Drawing& drawing) {
    Extents extents = noExtents();
    for (const Path& path : drawing.gudtPaths)
        includePath(extents, path);
    return extents;
}

bool isFullTurn(const Path& arc) {
    double difference = std::fabs(double{arc.sngAngleFrom} - arc.sngAngleTo);
    if (difference > 6.2)
        difference = std::fabs(difference - fullTurnRadians);
    return difference <= sameAngle;
}

} // namespace torvik
