// SPDX-License-Identifier: MIT
// The images that both pictures are painted into.
#pragma once

#include "preview/stroke_tile.h"

#include <QImage>

namespace torvik {

// Gives the image that size, in image pixels; what it shows is left open. Its copies stay as they
// are.
inline void fitImage(QImage& image, QSize size) {
    if (image.size() != size || !image.isDetached())
        image = QImage(size, QImage::Format_RGB32);
}

inline Canvas canvasOf(QImage& image) {
    return {reinterpret_cast<std::uint32_t*>(image.bits()),
            image.bytesPerLine() / std::ptrdiff_t{sizeof(std::uint32_t)}, image.width(),
            image.height()};
}

} // namespace torvik
