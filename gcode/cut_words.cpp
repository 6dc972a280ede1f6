// SPDX-License-Identifier: MIT
#include "gcode/cut_words.h"

#include "base/numbers.h"
#include "gcode/program_output.h"
#include "gcode/statement_text.h"

#include <utility>

namespace torvik {
namespace {

bool isArc(const Path& path) {
    return path.intType == arcCounterClockwise || path.intType == arcClockwise;
}

std::string_view motion(const Path& path) {
    if (path.intType == straightLine)
        return "G1";
    return path.intType == arcClockwise ? "G2" : "G3";
}

bool startsAtEndOf(const Path& path, const Path& before) {
    return isSamePosition(path.sngStartX, path.sngStartY, before.sngEndX, before.sngEndY);
}

// What stands behind a statement's coordinates.
std::string tailOf(std::string_view feedWord) {
    return std::string(feedWord).append(lineEnd);
}

} // namespace

CutWords::CutWords(const Drawing& drawing, const PathSubscripts& paths, std::string_view feedWord)
    : m_tail(tailOf(feedWord)) {
    constexpr std::size_t usualBytes = 32; // of "G1 X123.456 Y123.456 F600" and some arcs
    m_cuts.reserve(paths.size());
    m_text.reserve(paths.size() * usualBytes);
    const Path* before = nullptr;
    StatementText words;
    for (const std::int16_t subscript : paths) {
        const Path& path = drawing.gudtPaths[subscript];
        if (path.intType != straightLine && !isArc(path))
            continue;
        words.clear();
        words.put(motion(path)).position(" X", path.sngEndX).position(" Y", path.sngEndY);
        if (isArc(path)) {
            const float sngOffsetI = toSingle(double{path.sngCentreX} - path.sngStartX);
            const float sngOffsetJ = toSingle(double{path.sngCentreY} - path.sngStartY);
            words.position(" I", sngOffsetI).position(" J", sngOffsetJ);
        }
        words.put(m_tail);
        m_cuts.push_back({static_cast<std::uint32_t>(m_text.size()),
                          static_cast<std::uint16_t>(words.text().size()), subscript,
                          before != nullptr && startsAtEndOf(path, *before)});
        m_text += words.text();
        before = &path;
    }
}

void CutWords::changeFeed(std::string_view feedWord) {
    const std::string tail = tailOf(feedWord);
    if (tail == m_tail)
        return;
    const std::string former = std::exchange(m_text, {});
    m_text.reserve(former.size() + m_cuts.size() * tail.size());
    for (Cut& cut : m_cuts) {
        const std::size_t words = cut.textSize - m_tail.size();
        const auto start = static_cast<std::uint32_t>(m_text.size());
        m_text.append(former, cut.text, words).append(tail);
        cut.text = start;
        cut.textSize = static_cast<std::uint16_t>(words + tail.size());
    }
    m_tail = tail;
}

} // namespace torvik
