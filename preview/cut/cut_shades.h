// SPDX-License-Identifier: MIT
// The colours of a piece's depths, and their legend. They are those of the whole program, so that
// they stay while the cut grows.
#pragma once

#include "preview/cut/cut_piece.h"
#include "preview/legend.h"
#include "sweep/cuts.h"
#include "sweep/field.h"

#include <QColor>

namespace torvik {

class CutShades {
public:
    CutShades() = default;
    CutShades(const sweep::Field& whole, const sweep::Cuts& cuts, const CutBillet& billet);

    // 1/100 mm.
    QRgb colour(std::uint16_t depth) const; // of one that the cuts leave, or 0
    QRgb rim(std::uint16_t depth) const;    // the dark edge of what is so deep
    bool isThrough(std::uint16_t depth) const { return depth >= m_through; }

    // As deep as it looks: all that goes through looks the same.
    std::uint16_t seen(std::uint16_t depth) const {
        return isThrough(depth) ? static_cast<std::uint16_t>(m_through) : depth;
    }

    std::vector<Legend::Row> legend() const;

    static constexpr QRgb surface = 0xFFF3ECDD; // of the billet
    static constexpr QRgb hatch = 0xFF505050;
    static constexpr QRgb hole = 0xFFFFFFFF; // between the hatching

private:
    void fillColours(const sweep::Cuts& cuts);

    std::vector<std::uint16_t> m_depths; // all that occur, ascending, but those that go through
    std::vector<QRgb> m_colours;         // by depth
    std::uint32_t m_through = 0x10000;   // from here on: through
    bool m_hasThrough = false;
};

} // namespace torvik
