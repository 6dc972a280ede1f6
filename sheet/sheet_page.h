// SPDX-License-Identifier: MIT
// A job sheet as one A4 page. It is never two: long lists end with how many more there are.
#pragma once

#include "sheet/sheet_content.h"

#include <QImage>

class QPainter;

namespace torvik {

struct SheetPictures {
    QImage drawing;
    QImage piece;
};

// The place of a picture on the page, in mm, for its image to be made in that shape.
inline constexpr double sheetPictureWidth = 91;
inline constexpr double sheetPictureHeight = 72;

// Paints the page; the painter's units are tenths of a millimetre from the paper's corner.
void paintSheet(QPainter& painter, const SheetContent& content, const SheetPictures& pictures);

} // namespace torvik
