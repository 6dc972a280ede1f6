// SPDX-License-Identifier: MIT
#include "prepare/source/source_report.h"

namespace torvik {

std::string_view lossText(Loss loss) {
    static constexpr std::array<std::string_view, lossCount> texts{
        "texts (not drawn)",
        "symbols and characters of the drawing's own (not drawn)",
        "fills (only the outline is drawn)",
        "dashed line types (drawn as full lines)",
        "clipping windows (what lies outside is drawn too)",
        "pictures made of dots (not drawn)",
        "gradients, patterns, masks and filters (not drawn)",
        "circles and arcs asked for with coarse chords (drawn round)",
        "lines drawn with no pen in the holder (not drawn)",
        "arcs with the pen up (not drawn)",
        "page ends (all pages are drawn over one another)",
        "instructions with missing or senseless numbers (passed over)",
    };
    return texts[static_cast<std::size_t>(loss)];
}

} // namespace torvik
