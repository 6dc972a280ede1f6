// SPDX-License-Identifier: MIT
// What a program does, item by item: a cut, or a hole with all its pecks, and the way to it. Moves
// that lead nowhere are left out.
#pragma once

#include "check/move.h"

#include <cstdint>
#include <span>

namespace torvik::check {

using MoveSpan = std::span<const Move* const>;

struct DoneItem {
    std::uint32_t work; // where its own moves begin
    std::uint32_t end;
};

class Done {
public:
    explicit Done(const Moves& moves);

    std::size_t size() const { return m_items.size(); }
    // The moves that lead to the item; behind the last item, those to the end.
    MoveSpan wayTo(std::size_t item) const;
    // The cut, or the moves of the hole.
    MoveSpan work(std::size_t item) const;
    bool isHole(std::size_t item) const { return !first(item).isCut(); }
    const Move& first(std::size_t item) const { return *m_moves[m_items[item].work]; }
    // How high the tool is before the moves to the item.
    double heightBefore(std::size_t item) const;
    // The line of the item, the program's last move behind the last item.
    std::uint32_t lineOf(std::size_t item) const;

private:
    static constexpr std::uint32_t none = UINT32_MAX;

    void keepHole(std::uint32_t end);
    void keepHoleBeforeCut(std::uint32_t cut);
    void keep(std::uint32_t work, std::uint32_t end);

    LongVector<const Move*> m_moves;
    LongVector<DoneItem> m_items;
    std::uint32_t m_down = none; // the first way down behind the last item
};

} // namespace torvik::check
