// SPDX-License-Identifier: MIT
// The statements that cut a pen's paths, as text that is formatted once: every depth pass writes
// the same words, only Z and, for the final pass, the feed differ.
#pragma once

#include "gcode/path_index.h"

#include <string>
#include <string_view>
#include <vector>

namespace torvik {

class CutWords {
public:
    // One path that is cut.
    struct Cut {
        std::uint32_t text; // where its statement starts
        std::uint16_t textSize;
        std::int16_t path; // subscript of gudtPaths
        bool connected;    // it starts where the cut before it ends
    };

    // Takes the lines and arcs among the paths; paths of other kinds are passed over.
    CutWords(const Drawing& drawing, const PathSubscripts& paths, std::string_view feedWord);

    // Puts another feed at the end of every statement.
    void changeFeed(std::string_view feedWord);

    const std::vector<Cut>& cuts() const { return m_cuts; }
    // "G1 X.. Y.. F..", "G2 X.. Y.. I.. J.. F.." or "G3 ..." with its line end.
    std::string_view text(const Cut& cut) const {
        return std::string_view(m_text).substr(cut.text, cut.textSize);
    }

private:
    std::vector<Cut> m_cuts;
    std::string m_text;
    std::string m_tail; // the feed and the line end
};

} // namespace torvik
