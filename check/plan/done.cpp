// SPDX-License-Identifier: MIT
#include "check/plan/done.h"

namespace torvik::check {
namespace {

bool matters(const Move& move) {
    switch (move.kind) {
    case MoveKind::rapidHeight:
    case MoveKind::feedHeight:
        return !(move.from.z == move.to.z);
    case MoveKind::rapidAcross:
        return !(move.from.x == move.to.x && move.from.y == move.to.y);
    case MoveKind::other:
    case MoveKind::programEnd:
        return false;
    default:
        return true;
    }
}

// What ends the moves of a hole although no cut follows.
bool leavesHole(const Move& move) {
    return move.kind == MoveKind::rapidAcross || move.kind == MoveKind::tool ||
           move.kind == MoveKind::spindleOn || move.kind == MoveKind::spindleOff;
}

} // namespace

Done::Done(const Moves& moves) {
    m_moves.reserve(moves.size());
    m_items.reserve(moves.size());
    for (const Move& move : moves) {
        if (!matters(move))
            continue;
        const auto at = static_cast<std::uint32_t>(m_moves.size());
        if (move.isCut())
            keepHoleBeforeCut(at);
        else if (leavesHole(move))
            keepHole(at);
        else if (move.kind == MoveKind::feedHeight && m_down == none)
            m_down = at;
        m_moves.push_back(&move);
        if (move.isCut())
            keep(at, at + 1);
    }
    keepHole(static_cast<std::uint32_t>(m_moves.size()));
}

// The moves from the first way down to where the tool is out again.
void Done::keepHole(std::uint32_t end) {
    if (m_down == none)
        return;
    std::uint32_t out = m_down;
    for (std::uint32_t i = m_down; i < end; ++i)
        if (m_moves[i]->kind != MoveKind::rapidHeight)
            out = i + 1;
    keep(m_down, out < end ? out + 1 : out);
}

// The last way down leads to the cut. Where the tool comes out before, there is a hole as well.
void Done::keepHoleBeforeCut(std::uint32_t cut) {
    const bool isDown = cut > 0 && m_moves.back()->kind == MoveKind::feedHeight;
    const std::uint32_t end = isDown ? cut - 1 : cut;
    if (m_down < end && m_moves[end - 1]->kind == MoveKind::rapidHeight)
        keepHole(end);
}

void Done::keep(std::uint32_t work, std::uint32_t end) {
    m_items.push_back({work, end});
    m_down = none;
}

MoveSpan Done::wayTo(std::size_t item) const {
    const std::uint32_t begin = item == 0 ? 0 : m_items[item - 1].end;
    const std::size_t end = item < size() ? m_items[item].work : m_moves.size();
    return MoveSpan(m_moves).subspan(begin, end - begin);
}

MoveSpan Done::work(std::size_t item) const {
    const DoneItem& found = m_items[item];
    return MoveSpan(m_moves).subspan(found.work, found.end - found.work);
}

double Done::heightBefore(std::size_t item) const {
    if (item == 0 || m_moves.empty())
        return unknown;
    return m_moves[m_items[item - 1].end - 1]->to.z;
}

std::uint32_t Done::lineOf(std::size_t item) const {
    if (item < size())
        return first(item).line;
    return m_moves.empty() ? 1 : m_moves.back()->line;
}

} // namespace torvik::check
