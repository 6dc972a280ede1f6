// SPDX-License-Identifier: MIT
#include "base/picture.h"
#include "check/finders.h"

namespace torvik::check {
namespace {

constexpr double slowestTurn = 50;     // rpm; what is outside is unusual
constexpr double fastestTurn = 40'000; // rpm

class Spindle {
public:
    Spindle(const Walked& walked, Findings& findings) : m_walked(walked), m_findings(findings) {}

    void find() {
        for (const Move& move : m_walked.moves)
            take(move);
        if (m_turns && m_walked.target().stopsSpindle)
            m_findings.add(Kind::spindleLeftOn, m_walked.program.lastLine());
    }

private:
    void take(const Move& move) {
        if (move.kind == MoveKind::tool) {
            if (m_turns && m_walked.target().stopsSpindle)
                m_findings.add(Kind::toolSpinning, move.line);
            m_hasTool = true;
            turn(false);
        } else if (move.kind == MoveKind::spindleOff) {
            turn(false);
        } else if (move.kind == MoveKind::spindleOn) {
            findSpeed(move);
            turn(true);
        } else if (move.isFed() && m_hasTool && !m_turns && !m_offFound) {
            m_offFound = true; // once until the spindle turns
            m_findings.add(Kind::spindleOff, move.line);
        }
    }

    void turn(bool turns) {
        m_turns = turns;
        m_offFound = false;
    }

    void findSpeed(const Move& move) {
        if (move.value <= 0)
            m_findings.add(Kind::spindleZero, move.line);
        else if (move.value < slowestTurn || move.value > fastestTurn)
            m_findings.add(Kind::spindleOdd, move.line, {formatFixed(move.value, 0)});
    }

    const Walked& m_walked;
    Findings& m_findings;
    bool m_hasTool = false;
    bool m_turns = false;
    bool m_offFound = false;
};

} // namespace

void findSpindle(const Walked& walked, Findings& findings) {
    Spindle(walked, findings).find();
}

} // namespace torvik::check
