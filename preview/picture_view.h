// SPDX-License-Identifier: MIT
// From millimetres to the screen: first twips in the picture, then the pixels of the image that it
// is painted into. X runs to the right and Y down.
#pragma once

#include "preview/preview_fit.h"

#include <algorithm>
#include <cmath>

namespace torvik {

struct ScreenPoint {
    double x;
    double y;

    bool operator==(const ScreenPoint&) const = default;
};

struct PictureView {
    PreviewFit fit;
    double scaleHeight = 0; // the picture's inner height, twips
    ScreenPoint origin{};   // the picture's upper left corner in the image, image pixels
    double pixelRatio = 1;  // image pixels for each pixel of 15 twips

    double screenX(double x) const { return fit.gsngScale * x - fit.gsngOffsetX; }
    double screenY(double y) const { return scaleHeight - fit.gsngScale * y + fit.gsngOffsetY; }

    // In the image.
    ScreenPoint point(double x, double y) const {
        return {origin.x + imageLength(screenX(x)), origin.y + imageLength(screenY(y))};
    }
    double length(double mm) const { return imageLength(mm * fit.gsngScale); }
    // Whole image pixels, so that upright and level lines stay sharp.
    double lineWidth() const { return std::max(1.0, std::round(pixelRatio)); }
    // As wide as the tool, but never less than a line.
    double toolWidth(double diameter) const { return std::max(length(diameter), lineWidth()); }

    bool operator==(const PictureView&) const = default;

private:
    double imageLength(double twips) const { return twips / twipsPerPixel * pixelRatio; }
};

} // namespace torvik
