// SPDX-License-Identifier: MIT
// The two pictures of a job sheet, white where nothing is: the drawing in its pens' colours, and
// the piece as its program cuts it, with billet, zero point and clamped sides.
#pragma once

#include "preview/cut/cut_piece.h"
#include "sheet/clamping.h"

#include <QImage>

namespace torvik {

struct Job;
class Logger;

// `size` is in image pixels; `ratio` of them are one of a screen's, which is how thick lines are.
struct PictureSize {
    QSize size;
    double ratio;
};

QImage drawingPicture(const Job& job, PictureSize size, Logger& logger);
QImage cutPicture(const CutPiece& piece, const Clamping& clamping, PictureSize size);

} // namespace torvik
