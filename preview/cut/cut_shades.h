// SPDX-License-Identifier: MIT
// The colours of a piece's depths, and their legend. They are those of the whole program, so that
// they stay while the cut grows.
#pragma once

#include "preview/cut/cut_piece.h"
#include "preview/legend.h"
#include "sweep/field.h"

#include <QColor>

namespace torvik {

class CutShades {
public:
    CutShades() = default;
    CutShades(const sweep::Field& whole, const CutBillet& billet);

    // 1/100 mm.
    QRgb colour(std::uint16_t depth) const;
    QRgb rim(std::uint16_t depth) const; // the dark edge of what is so deep
    bool isThrough(std::uint16_t depth) const { return depth >= m_through; }

    std::vector<Legend::Row> legend() const;

    static constexpr QRgb surface = 0xFFF3ECDD; // of the billet
    static constexpr QRgb hatch = 0xFF505050;
    static constexpr QRgb hole = 0xFFFFFFFF; // between the hatching

private:
    std::vector<std::uint16_t> m_depths; // all that occur, ascending, but those that go through
    std::vector<QRgb> m_colours;         // by depth
    std::uint16_t m_deepest = 0;
    std::uint32_t m_through = 0x10000; // from here on: through
    bool m_hasThrough = false;
};

} // namespace torvik
