// SPDX-License-Identifier: MIT
// Paints the piece in perspective, by a ray for each pixel through the cells. No graphics driver is
// asked for.
#pragma once

#include "preview/cut/solid_cells.h"

#include <QImage>

namespace torvik {

struct SolidCamera {
    double turn = -1.9; // radians, where it stands round the piece; 0: at high X
    double lift = 0.85; // above the surface
    double zoom = 1;
    QRgb background = 0xFFFFFFFF;

    static constexpr double leastLift = 0.2;
    static constexpr double mostLift = 1.5;
    static constexpr double leastZoom = 0.5;
    static constexpr double mostZoom = 12;

    void turnBy(double turned, double lifted);
    void zoomBy(double factor);
};

// The image must be of Format_RGB32. The number of threads changes nothing but the time.
void paintSolid(QImage& image, const SolidCells& cells, const SolidCamera& camera, int threads = 2);

} // namespace torvik
