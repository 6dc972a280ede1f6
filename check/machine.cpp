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

class Machine {
public:
    explicit Machine(std::size_t statements) { m_moves.reserve(statements); }

    void take(const Statement& statement) {
        Move move;
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
        m_moves.push_back(move);
        if (statement.meaning == Meaning::retract)
            stopSpindle(statement.line);
    }

    Moves finish() { return std::move(m_moves); }

private:
    void stopSpindle(std::uint32_t line) {
        Move stop;
        stop.line = line;
        stop.kind = MoveKind::spindleOff;
        stop.from = stop.to = m_at;
        m_moves.push_back(stop);
    }

    Moves m_moves;
    Place m_at;
};

} // namespace

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

Moves walk(const Program& program) {
    Machine machine(program.statements.size());
    for (const Statement& statement : program.statements)
        machine.take(statement);
    return machine.finish();
}

} // namespace torvik::check
