// SPDX-License-Identifier: MIT
// A field made ready to be seen from the side: columns of material with their colours. Lengths are
// cells; the surface has height 0, the floors lie below.
#pragma once

#include "preview/cut/cut_piece.h"
#include "sweep/field.h"

#include <QColor>

#include <cstdint>
#include <vector>

namespace torvik {

class SolidCells {
public:
    static constexpr int most = 512; // a side; a finer field is taken together, deepest first

    SolidCells() = default;
    SolidCells(const sweep::Field& field, const CutBillet& billet);

    int columns = 0;
    int rows = 0;
    float thickness = 1;             // of the billet
    std::vector<float> heights;      // of the top of each cell, `-thickness` for a hole
    std::vector<QRgb> tops;          // its colour seen from above
    std::vector<std::uint8_t> walls; // where its walls face: 256 to a turn from X to Y

private:
    void takeDepths(const sweep::Field& field, const CutBillet& billet, double& cell);
    std::vector<float> windowSums() const;
    void colourTops(const std::vector<float>& sums);
    void turnWalls(const std::vector<float>& sums);
};

} // namespace torvik
