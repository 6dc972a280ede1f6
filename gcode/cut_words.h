// SPDX-License-Identifier: MIT
// The statements that cut a pen's paths, as text that is formatted once: every depth pass writes
// the same words, only Z and, for the final pass, the feed differ.
#pragma once

#include "base/numbers.h"
#include "gcode/block_lines.h"
#include "gcode/path_index.h"

#include <cstdint>
#include <string>
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

// Cuts that follow one another without a gap.
struct CutRun {
    std::uint32_t first = 0;
    std::uint32_t end = 0;
    std::int16_t firstPath = 0; // subscripts of gudtPaths
    std::int16_t lastPath = 0;
};

// Adds a cut to the runs, and returns the one that it belongs to.
template <typename Run>
Run& addCut(std::vector<Run>& runs, std::int16_t path, bool connected) {
    const std::uint32_t cut = runs.empty() ? 0 : runs.back().end;
    if (!connected) {
        Run& begun = runs.emplace_back();
        begun.first = cut;
        begun.firstPath = path;
    }
    Run& run = runs.back();
    run.end = cut + 1;
    run.lastPath = path;
    return run;
}

class CutWords {
public:
    // Takes the lines and arcs among the paths. The feed is mm/min.
    CutWords(const Drawing& drawing, const PathSubscripts& paths, const Dialect& dialect,
             float feed);

    // Puts another feed at the end of every statement.
    void changeFeed(const Dialect& dialect, float feed);

    const std::vector<CutRun>& runs() const { return m_runs; }
    // "G1 X.. Y.. F..", "G2 X.. Y.. I.. J.. F.." or "G3 ..." of each cut.
    BlockLines& lines() { return m_lines; }

private:
    std::vector<CutRun> m_runs;
    BlockLines m_lines;
    std::string m_tail; // the feed and the line end
};

} // namespace torvik
