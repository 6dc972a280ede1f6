// SPDX-License-Identifier: MIT
#include "preview/cut/field_painter.h"

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

constexpr QRgb table = 0xFFFFFFFF;
constexpr int hatchStep = 7; // pixels
constexpr int hatchWidth = 2;

QRgb reddened(QRgb colour) {
    return qRgb((qRed(colour) + 2 * 0xE0) / 3, qGreen(colour) / 2 + 0x20, qBlue(colour) / 2 + 0x20);
}

} // namespace

FieldPainter::Cells FieldPainter::cellsAt(const Axis& axis, double from, double to) {
    Cells cells;
    const double middle = (from + to) / 2;
    cells.isBillet = middle >= axis.billetLow && middle < axis.billetHigh;
    const double low = std::clamp((from - axis.low) / axis.cell, -1.0, axis.count + 1.0);
    const double high = std::clamp((to - axis.low) / axis.cell, -1.0, axis.count + 1.0);
    // A pixel that is smaller than a cell shows the cell of its middle.
    const bool isSmall = to - from < axis.cell;
    cells.first = static_cast<int>(std::floor(isSmall ? (low + high) / 2 : low));
    cells.end = isSmall ? cells.first + 1 : static_cast<int>(std::floor(high));
    cells.first = std::max(cells.first, 0);
    cells.end = std::min(cells.end, axis.count);
    return cells;
}

// The deepest of the cells that a pixel covers, so that no fine line gets lost.
void FieldPainter::sample(const sweep::Field& field, std::size_t row, Cells cells) {
    std::uint16_t* const depths = &m_depths[row * m_columns.size()];
    std::fill_n(depths, m_columns.size(), std::uint16_t{0});
    for (int y = cells.first; y < cells.end; ++y) {
        const std::uint16_t* const line = &field.depths[field.at(0, y)];
        for (std::size_t x = 0; x < m_columns.size(); ++x)
            for (int i = m_columns[x].first; i < m_columns[x].end; ++i)
                depths[x] = std::max(depths[x], line[i]);
    }
}

void FieldPainter::shade(QRgb* line, int y, int height, int rim, const CutShades& shades,
                         bool isBillet) {
    const int width = static_cast<int>(m_columns.size());
    const auto depthAt = [&](int x, int row) {
        return m_depths[static_cast<std::size_t>(std::clamp(row, 0, height - 1)) *
                            m_columns.size() +
                        static_cast<std::size_t>(std::clamp(x, 0, width - 1))];
    };
    for (int x = 0; x < width; ++x) {
        const std::uint16_t depth = depthAt(x, y);
        const std::uint16_t edge = shades.seen(depth);
        const bool inside = isBillet && m_columns[static_cast<std::size_t>(x)].isBillet;
        if (depth == 0) {
            line[x] = inside ? CutShades::surface : table;
            continue;
        }
        const bool isEdge = depthAt(x - rim, y) < edge || depthAt(x + rim, y) < edge ||
                            depthAt(x, y - rim) < edge || depthAt(x, y + rim) < edge;
        QRgb colour = shades.colour(depth);
        if (isEdge)
            colour = shades.rim(depth);
        else if (shades.isThrough(depth))
            colour =
                (x + y) % (hatchStep * rim) < hatchWidth * rim ? CutShades::hatch : CutShades::hole;
        line[x] = inside ? colour : reddened(colour);
    }
}

void FieldPainter::paint(QImage& image, const sweep::Field& field, const CutBillet& billet,
                         const CutShades& shades, const CutView& view, int rim) {
    const sweep::Grid& grid = field.grid;
    const Axis across{grid.lowX, grid.cell, grid.columns, billet.lowX, billet.lowX + billet.length};
    const Axis up{grid.lowY, grid.cell, grid.rows, billet.lowY, billet.lowY + billet.width};
    m_columns.resize(static_cast<std::size_t>(image.width()));
    m_rows.resize(static_cast<std::size_t>(image.height()));
    m_depths.resize(m_columns.size() * m_rows.size());
    const QPointF corner = view.toPlace({0, 0});
    const double step = 1 / view.scale();
    for (std::size_t x = 0; x < m_columns.size(); ++x) {
        const double from = corner.x() + step * static_cast<double>(x);
        m_columns[x] = cellsAt(across, from, from + step);
    }
    for (std::size_t y = 0; y < m_rows.size(); ++y) {
        const double to = corner.y() - step * static_cast<double>(y);
        m_rows[y] = cellsAt(up, to - step, to);
        sample(field, y, m_rows[y]);
    }
    for (int y = 0; y < image.height(); ++y)
        shade(reinterpret_cast<QRgb*>(image.scanLine(y)), y, image.height(), rim, shades,
              m_rows[static_cast<std::size_t>(y)].isBillet);
}

} // namespace torvik
