// SPDX-License-Identifier: MIT
#include "sheet/clamping.h"

#include <algorithm>

namespace torvik {

Clamping clampingOf(const CutPiece& piece) {
    const auto reach = sweep::areaOf(sweep::cutsOf(piece.moves, piece.diameters()));
    if (!piece.billet.isKnown() || !reach)
        return {};
    const CutBillet& billet = piece.billet;
    const double across =
        std::min(reach->lowX - billet.lowX, billet.lowX + billet.length - reach->highX);
    const double along =
        std::min(reach->lowY - billet.lowY, billet.lowY + billet.width - reach->highY);
    if (std::max(across, along) <= 0)
        return {};
    return across > along ? Clamping{Clamping::Sides::leftAndRight, across}
                          : Clamping{Clamping::Sides::frontAndBack, along};
}

} // namespace torvik
