// SPDX-License-Identifier: MIT
// The piece preview as an image: the grooves and holes that the tools leave, darker where they are
// deeper.
#pragma once

#include "preview/depths.h"
#include "preview/picture_view.h"

#include <QImage>

namespace torvik {

struct Job;
struct ToolList;

// Paints the machined paths in the order of gintPathOrder into a white image of that size, in
// image pixels, and returns the depths met. Raises InvalidCall at a group without a tool, and
// SubscriptOutOfRange.
DepthList paintPiece(QImage& image, QSize size, const PictureView& view, const Job& job,
                     const ToolList& tools, const PieceScale& piece);

} // namespace torvik
