// SPDX-License-Identifier: MIT
// The words of a pen's paths as text, formatted once: every depth pass writes the same words, only
// feed and Z differ.
#pragma once

#include "gcode/path_index.h"

#include <string>
#include <string_view>
#include <vector>

namespace torvik {

class CutWords {
public:
    // One path that is cut, with its end points at hand for the comparison of positions.
    struct Cut {
        std::int16_t path = 0; // subscript of gudtPaths
        float startX = 0;
        float startY = 0;
        float endX = 0;
        float endY = 0;
        std::uint32_t text = 0; // place of "G1 X.. Y..", "G2 ...", "G3 ..." without the feed
        std::uint32_t textSize = 0;
    };

    // Takes the lines and arcs among the paths; paths of other kinds are passed over. Stores
    // centre minus start in the arcs' sngOffsetI and sngOffsetJ.
    CutWords(Job& job, const PathSubscripts& paths);

    const std::vector<Cut>& cuts() const { return m_cuts; }
    std::string_view text(const Cut& cut) const {
        return std::string_view(m_text).substr(cut.text, cut.textSize);
    }

private:
    std::vector<Cut> m_cuts;
    std::string m_text;
};

} // namespace torvik
