// SPDX-License-Identifier: MIT
#include "check/heights.h"

#include <map>

namespace torvik::check {
namespace {

// How often each height is used, in hundredths of a mm.
class Uses {
public:
    void add(double z) {
        if (std::isfinite(z))
            ++m_uses[std::lround(z / heightStep)];
    }

    // The higher one of two that are used as often.
    double most() const {
        double height = unknown;
        long best = 0;
        for (const auto& [level, uses] : m_uses) {
            if (uses < best)
                continue;
            best = uses;
            height = static_cast<double>(level) * heightStep;
        }
        return height;
    }

private:
    std::map<long, long> m_uses;
};

// What stands behind a move, what neither moves nor says a speed passed over; the program's end for
// the last one.
MoveKind kindBehind(const Moves& moves, std::size_t i) {
    for (++i; i < moves.size(); ++i)
        if (moves[i].kind != MoveKind::spindleOff && moves[i].kind != MoveKind::other)
            return moves[i].kind;
    return MoveKind::programEnd;
}

} // namespace

Heights learnHeights(const Moves& moves) {
    Uses toolChange;
    Uses safe;
    Uses rapidDown;
    for (std::size_t i = 0; i < moves.size(); ++i) {
        if (moves[i].kind != MoveKind::rapidHeight)
            continue;
        const double z = moves[i].to.z;
        const MoveKind behind = kindBehind(moves, i);
        if (behind == MoveKind::feedHeight)
            rapidDown.add(z);
        else if (behind == MoveKind::rapidAcross ||
                 (i > 0 && moves[i - 1].kind == MoveKind::spindleOn))
            safe.add(z);
        else if (behind == MoveKind::tool || behind == MoveKind::spindleOn ||
                 behind == MoveKind::programEnd)
            toolChange.add(z);
    }
    return {toolChange.most(), safe.most(), rapidDown.most()};
}

} // namespace torvik::check
