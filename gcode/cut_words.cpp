// SPDX-License-Identifier: MIT
#include "gcode/cut_words.h"

#include "base/numbers.h"
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
    m_starts.reserve(paths.size() + 1);
    m_text.reserve(paths.size() * usualBytes);
    m_starts.push_back(0);
    visitCuts(drawing, paths, [&](std::int16_t subscript, bool connected) {
        m_text.append(coordinates(drawing.gudtPaths[subscript]).text()).append(m_tail);
        m_starts.push_back(static_cast<std::uint32_t>(m_text.size()));
        addCut(m_runs, subscript, connected);
    });
    m_text.append(PaddedLine::padding, '\0');
}

void CutWords::changeFeed(const Dialect& dialect, float feed) {
    const std::string tail = tailOf(dialect, feed);
    if (tail == m_tail)
        return;
    const std::string former = std::exchange(m_text, {});
    m_text.reserve(former.size() + m_starts.size() * tail.size());
    std::uint32_t start = 0; // of a line in the former text
    for (auto next = m_starts.begin() + 1; next != m_starts.end(); ++next) {
        const std::size_t words = *next - start - m_tail.size();
        m_text.append(former, start, words).append(tail);
        start = std::exchange(*next, static_cast<std::uint32_t>(m_text.size()));
    }
    m_text.append(PaddedLine::padding, '\0');
    m_tail = tail;
}

} // namespace torvik
