// SPDX-License-Identifier: MIT
#include "gcode/cut_words.h"

#include "base/numbers.h"
#include "gcode/statement_text.h"

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

} // namespace

CutWords::CutWords(Job& job, const PathSubscripts& paths) {
    constexpr std::size_t usualBytes = 28; // of "G1 X123.456 Y123.456" and some arcs
    m_cuts.reserve(paths.size());
    m_text.reserve(paths.size() * usualBytes);
    StatementText words;
    for (const std::int16_t subscript : paths) {
        Path& path = job.gudtPaths[subscript];
        if (path.intType != straightLine && !isArc(path))
            continue;
        words.clear();
        words.put(motion(path)).position(" X", path.sngEndX).position(" Y", path.sngEndY);
        if (isArc(path)) {
            path.sngOffsetI = toSingle(double{path.sngCentreX} - path.sngStartX);
            path.sngOffsetJ = toSingle(double{path.sngCentreY} - path.sngStartY);
            words.position(" I", path.sngOffsetI).position(" J", path.sngOffsetJ);
        }
        m_cuts.push_back({subscript, path.sngStartX, path.sngStartY, path.sngEndX, path.sngEndY,
                          static_cast<std::uint32_t>(m_text.size()),
                          static_cast<std::uint32_t>(words.text().size())});
        m_text += words.text();
    }
}

} // namespace torvik
