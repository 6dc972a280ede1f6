// SPDX-License-Identifier: MIT
#include "gcode/cut_words.h"

#include "base/numbers.h"
#include "gcode/program_output.h"
#include "gcode/statement_text.h"

#include <utility>

namespace torvik {
namespace {

std::string_view motion(const Path& path) {
    if (path.intType == straightLine)
        return "G1";
    return path.intType == arcClockwise ? "G2" : "G3";
}

// What stands behind a statement's coordinates.
std::string tailOf(const Dialect& dialect, float feed) {
    StatementText words;
    words.feed(dialect, feed).put(lineEnd);
    return std::string(words.text());
}

StatementText coordinates(const Path& path) {
    StatementText words(motion(path));
    words.position(" X", path.sngEndX).position(" Y", path.sngEndY);
    if (isArc(path)) {
        const float sngOffsetI = toSingle(double{path.sngCentreX} - path.sngStartX);
        const float sngOffsetJ = toSingle(double{path.sngCentreY} - path.sngStartY);
        words.position(" I", sngOffsetI).position(" J", sngOffsetJ);
    }
    return words;
}

} // namespace

CutWords::CutWords(const Drawing& drawing, const PathSubscripts& paths, const Dialect& dialect,
                   float feed)
    : m_tail(tailOf(dialect, feed)) {
    constexpr std::size_t usualBytes = 32; // of "G1 X123.456 Y123.456 F600" and some arcs
    m_lines.reserve(paths.size(), usualBytes);
    visitCuts(drawing, paths, [&](std::int16_t subscript, bool connected) {
        m_lines.append(coordinates(drawing.gudtPaths[subscript]).put(m_tail));
        addCut(m_runs, subscript, connected);
    });
}

void CutWords::changeFeed(const Dialect& dialect, float feed) {
    std::string tail = tailOf(dialect, feed);
    if (tail == m_tail)
        return;
    m_lines.changeEnds(m_tail, tail);
    m_tail = std::move(tail);
}

} // namespace torvik
