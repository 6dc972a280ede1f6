// SPDX-License-Identifier: MIT
// The statements that cut a pen's paths, as text that is formatted once: every depth pass writes
// the same words, only Z and, for the final pass, the feed differ.
#pragma once

#include "base/numbers.h"
#include "gcode/path_index.h"

#include <string>
#include <string_view>
#include <vector>

namespace torvik {

struct Dialect;

inline bool isArc(const Path& path) {
    return path.intType == arcCounterClockwise || path.intType == arcClockwise;
}

// Calls visit(subscript, connected) for the lines and arcs among the paths; those of other kinds
// are passed over. `connected` says that the path starts where the one before it ends.
template <typename Visit>
void visitCuts(const Drawing& drawing, const PathSubscripts& paths, Visit visit) {
    const Path* before = nullptr;
    for (const std::int16_t subscript : paths) {
        const Path& path = drawing.gudtPaths[subscript];
        if (path.intType != straightLine && !isArc(path))
            continue;
        visit(subscript, before != nullptr && isSamePosition(path.sngStartX, path.sngStartY,
                                                             before->sngEndX, before->sngEndY));
        before = &path;
    }
}

class CutWords {
public:
    // One path that is cut.
    struct Cut {
        std::uint32_t text; // where its statement starts
        std::uint16_t textSize;
        std::int16_t path; // subscript of gudtPaths
        bool connected;    // it starts where the cut before it ends
    };

    // Takes the lines and arcs among the paths. The feed is mm/min.
    CutWords(const Drawing& drawing, const PathSubscripts& paths, const Dialect& dialect,
             float feed);

    // Puts another feed at the end of every statement.
    void changeFeed(const Dialect& dialect, float feed);

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
