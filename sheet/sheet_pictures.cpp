// SPDX-License-Identifier: MIT
#include "sheet/sheet_pictures.h"

#include "job/job.h"
#include "preview/cut/cut_painting.h"
#include "preview/cut/field_painter.h"
#include "preview/line_picture.h"
#include "sweep/growth.h"

#include <QPainter>

namespace torvik {
namespace {

constexpr double margin = 34; // pixels of a screen round the piece, for sizes and jaws
constexpr double jawWidth = 9;
constexpr double jawGap = 3;

QImage blank(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

// Bars beside the two sides, as the jaws of a vice lie there.
void paintJaws(QPainter& painter, const CutView& view, const CutBillet& billet, Clamping clamping) {
    if (clamping.sides == Clamping::Sides::none)
        return;
    const QRectF edge(view.toPixels({billet.lowX, billet.lowY + billet.width}),
                      view.toPixels({billet.lowX + billet.length, billet.lowY}));
    const double in = jawGap + jawWidth;
    painter.setPen(QPen(QColor(0x60, 0x60, 0x60), 1));
    painter.setBrush(QBrush(QColor(0x60, 0x60, 0x60), Qt::BDiagPattern));
    if (clamping.sides == Clamping::Sides::leftAndRight) {
        painter.drawRect(QRectF(edge.left() - in, edge.top(), jawWidth, edge.height()));
        painter.drawRect(QRectF(edge.right() + jawGap, edge.top(), jawWidth, edge.height()));
    } else {
        painter.drawRect(QRectF(edge.left(), edge.top() - in, edge.width(), jawWidth));
        painter.drawRect(QRectF(edge.left(), edge.bottom() + jawGap, edge.width(), jawWidth));
    }
}

// The billet and all that is cut, with a margin so many screen pixels wide.
QRectF wholeOf(const CutBillet& billet, const sweep::Grid& grid, QSizeF size) {
    QRectF whole(grid.lowX, grid.lowY, grid.columns * grid.cell, grid.rows * grid.cell);
    whole |= QRectF(0, 0, 1e-6, 1e-6);
    if (billet.isKnown())
        whole |= QRectF(billet.lowX, billet.lowY, billet.length, billet.width);
    const double scale = std::min((size.width() - 2 * margin) / whole.width(),
                                  (size.height() - 2 * margin) / whole.height());
    const double round = margin / std::max(scale, 1e-6);
    return whole.adjusted(-round, -round, round, round);
}

} // namespace

QImage drawingPicture(const Job& job, PictureSize size, Logger& logger) {
    const auto twips = [&](int pixels) {
        return static_cast<float>(pixels / size.ratio * twipsPerPixel);
    };
    LineScale scale;
    if (!GetScale(job.drawing, {twips(size.size.width()), twips(size.size.height())}, scale,
                  logger))
        return blank(size.size);
    const auto pixels = [&](float length) { return length / twipsPerPixel * size.ratio; };
    LinePicture picture;
    picture.PlotLines(job,
                      {scale.fit,
                       scale.picture.sngHeight,
                       {pixels(scale.picture.sngLeft), pixels(scale.picture.sngTop)},
                       size.ratio},
                      size.size);
    return picture.image();
}

QImage cutPicture(const CutPiece& piece, const Clamping& clamping, PictureSize size) {
    const CutBillet& billet = piece.billet;
    const sweep::Area area =
        billet.isKnown() ? sweep::Area{billet.lowX, billet.lowY, billet.lowX + billet.length,
                                       billet.lowY + billet.width}
                         : sweep::Area{billet.lowX, billet.lowY, billet.lowX, billet.lowY};
    sweep::Growth growth(piece.moves, piece.diameters(), area);
    growth.build({});
    const sweep::Field& field = growth.whole();
    const QSizeF screen = QSizeF(size.size) / size.ratio;
    CutView view;
    view.setSize(screen);
    view.setWhole(wholeOf(billet, field.grid, screen));
    CutView inPixels = view;
    inPixels.setRatio(size.ratio);
    QImage image = blank(size.size);
    FieldPainter().paint(image, field, billet, CutShades(field, growth.cuts(), billet), inPixels,
                         std::max(1, static_cast<int>(std::lround(size.ratio))));
    image.setDevicePixelRatio(size.ratio);
    QPainter painter(&image);
    QFont font = painter.font();
    font.setPixelSize(11);
    painter.setFont(font);
    CutPainting over(painter, view);
    paintJaws(painter, view, billet, clamping);
    if (billet.isKnown())
        over.billet(billet);
    over.zeroPoint();
    return image;
}

} // namespace torvik
