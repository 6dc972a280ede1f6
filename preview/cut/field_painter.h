// SPDX-License-Identifier: MIT
// Paints a field as it is seen from above: each depth in its shade, a dark rim inside every edge,
// hatching where the tool goes through, red where it cuts beside the billet.
#pragma once

#include "preview/cut/cut_shades.h"
#include "preview/cut/cut_view.h"

#include <QImage>

namespace torvik {

class FieldPainter {
public:
    // `view` is in image pixels, `rim` so many of them wide. The image must be of Format_RGB32.
    void paint(QImage& image, const sweep::Field& field, const CutBillet& billet,
               const CutShades& shades, const CutView& view, int rim);

private:
    // The cells that a row or column of pixels shows, [first, end); none outside the field.
    struct Cells {
        int first = 0;
        int end = 0;
        bool isBillet = false;
    };
    struct Axis {
        double low; // of the grid
        double cell;
        int count; // of its cells
        double billetLow;
        double billetHigh;
    };

    static Cells cellsAt(const Axis& axis, double from, double to);
    void sample(const sweep::Field& field, std::size_t row, Cells cells);
    void shade(QRgb* line, int y, int height, int rim, const CutShades& shades, bool isBillet);

    // Kept for the next frame's sake.
    std::vector<Cells> m_columns;
    std::vector<Cells> m_rows;
    std::vector<std::uint16_t> m_depths; // a depth for each pixel
};

} // namespace torvik
