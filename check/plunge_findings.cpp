// SPDX-License-Identifier: MIT
#include "check/finders.h"

namespace torvik::check {
namespace {

class Plunges {
public:
    Plunges(const Walked& walked, Findings& findings) : m_walked(walked), m_findings(findings) {}

    void find() {
        const Move* before = nullptr;
        for (const Move& move : m_walked.moves) {
            if (before != nullptr) {
                if (before->kind == MoveKind::feedHeight && isEmpty(move))
                    m_findings.add(Kind::emptyPlunge, before->line);
                if (goesUp(*before) && goesDown(move))
                    m_findings.add(Kind::lostRapid, move.line);
            }
            before = &move;
        }
    }

private:
    static bool goesUp(const Move& move) {
        return move.kind == MoveKind::rapidHeight && move.to.z > move.from.z;
    }
    static bool goesDown(const Move& move) {
        return move.kind == MoveKind::rapidHeight && move.to.z < move.from.z;
    }

    // Behind the way down into a hole the drill waits, goes deeper or comes up to where a way down
    // begins; behind that of a cut comes the cut.
    bool isEmpty(const Move& behind) const {
        switch (behind.kind) {
        case MoveKind::rapidHeight: {
            const double up = m_walked.heights.rapidDown;
            return std::isfinite(behind.to.z) && std::isfinite(up) &&
                   !isSameHeight(behind.to.z, up);
        }
        case MoveKind::rapidAcross:
        case MoveKind::tool:
        case MoveKind::spindleOn:
        case MoveKind::programEnd:
            return true;
        default:
            return false;
        }
    }

    const Walked& m_walked;
    Findings& m_findings;
};

} // namespace

void findPlunges(const Walked& walked, Findings& findings) {
    Plunges(walked, findings).find();
}

} // namespace torvik::check
