// SPDX-License-Identifier: MIT
// The piece preview as an image: the grooves and holes that the tools leave, darker where they are
// deeper.
#pragma once

#include "preview/depths.h"
#include "preview/machined_path.h"
#include "preview/picture_view.h"

#include <QImage>

#include <stop_token>
#include <vector>

namespace torvik {

// Paints the works, which ascend by depth, into a white image of that size, in image pixels. When
// it is stopped the image is left unfinished.
void paintPiece(QImage& image, QSize size, const PictureView& view,
                const std::vector<WorkOnPath>& works, const PieceScale& piece,
                const std::stop_token& stop = {});

// The depths of the works.
DepthList depthsOf(const std::vector<WorkOnPath>& works);

} // namespace torvik
