// SPDX-License-Identifier: MIT
#include "check/machine.h"

#include <numbers>

namespace torvik::check {
namespace {

MoveKind kindOf(Meaning meaning) {
    switch (meaning) {
    case Meaning::rapidHeight:
    case Meaning::retract:
        return MoveKind::rapidHeight;
    case Meaning::rapidAcross:
        return MoveKind::rapidAcross;
    case Meaning::feedHeight:
        return MoveKind::feedHeight;
    case Meaning::cutLine:
        return MoveKind::cutLine;
    case Meaning::cutClockwise:
        return MoveKind::cutClockwise;
    case Meaning::cutCounterClockwise:
        return MoveKind::cutCounterClockwise;
    case Meaning::dwell:
        return MoveKind::dwell;
    case Meaning::tool:
        return MoveKind::tool;
    case Meaning::spindleOn:
        return MoveKind::spindleOn;
    case Meaning::programEnd:
        return MoveKind::programEnd;
    default:
        return MoveKind::other;
    }
}

} // namespace

void Machine::take(const Statement& statement) {
    Move& move = m_moves.emplace_back();
    move.line = statement.line;
    move.kind = kindOf(statement.meaning);
    move.from = m_at;
    move.feed = statement.feed;
    move.value = statement.value;
    move.offset = statement.offset;
    if (statement.meaning == Meaning::unknownMove)
        m_at = {};
    else if (move.kind == MoveKind::rapidHeight || move.kind == MoveKind::feedHeight)
        m_at.z = statement.z;
    else if (move.kind == MoveKind::rapidAcross || move.isCut())
        m_at = {statement.x, statement.y, m_at.z};
    move.to = m_at;
    if (move.isArc())
        move.centre = {move.from.x + statement.i, move.from.y + statement.j};
    if (statement.meaning == Meaning::retract)
        stopSpindle(statement.line);
}

void Machine::stopSpindle(std::uint32_t line) {
    Move& stop = m_moves.emplace_back();
    stop.line = line;
    stop.kind = MoveKind::spindleOff;
    stop.from = stop.to = m_at;
}

double Move::sweep() const {
    const double startX = from.x - centre.x;
    const double startY = from.y - centre.y;
    const double endX = to.x - centre.x;
    const double endY = to.y - centre.y;
    const double turn = std::atan2(startX * endY - startY * endX, startX * endX + startY * endY);
    const double wanted = kind == MoveKind::cutClockwise ? -turn : turn;
    const bool isFull = from.x == to.x && from.y == to.y;
    return isFull || wanted < 0 ? wanted + 2 * std::numbers::pi : wanted;
}

} // namespace torvik::check
