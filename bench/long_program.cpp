// SPDX-License-Identifier: MIT
#include "bench/long_program.h"

#include <random>

namespace torvik {
namespace {

using check::Move;
using check::MoveKind;

constexpr long runLength = 100; // elements
constexpr double step = 2;      // mm

class Maker {
public:
    explicit Maker(PlateSize plate) : m_plate(plate) { add(MoveKind::tool).value = 1; }

    void height(double z) {
        m_at.z = z;
        add(z > 0 ? MoveKind::rapidHeight : MoveKind::feedHeight);
    }

    void across(check::Place to) {
        m_at.x = to.x;
        m_at.y = to.y;
        add(MoveKind::rapidAcross);
    }

    // One run from where the tool stands.
    void run(unsigned seed, long elements) {
        std::minstd_rand engine{seed};
        double angle = 0;
        for (long i = 0; i < elements; ++i) {
            angle += static_cast<double>(engine() % 1000) / 1000 - 0.5;
            element(angle, i % 2 == 1);
        }
    }

    check::Moves finish() { return std::move(m_moves); }

private:
    void element(double angle, bool isArc) {
        const check::Place from = m_at;
        m_at.x = inside(m_at.x + step * std::cos(angle), m_plate.width);
        m_at.y = inside(m_at.y + step * std::sin(angle), m_plate.height);
        Move& move = add(isArc ? MoveKind::cutCounterClockwise : MoveKind::cutLine);
        // A quarter circle has its centre as far beside the chord as half of the chord.
        move.centre = {(from.x + m_at.x - m_at.y + from.y) / 2,
                       (from.y + m_at.y + m_at.x - from.x) / 2};
    }

    static double inside(double place, double size) { return std::fmin(std::fmax(place, 0), size); }

    Move& add(MoveKind kind) {
        Move move;
        move.kind = kind;
        move.line = static_cast<std::uint32_t>(m_moves.size()) + 1;
        move.from = m_moves.empty() ? m_at : m_moves.back().to;
        move.to = m_at;
        move.feed = 600;
        m_moves.push_back(move);
        return m_moves.back();
    }

    PlateSize m_plate;
    check::Moves m_moves;
    check::Place m_at{0, 0, 5};
};

} // namespace

check::Moves longProgram(PlateSize plate, long elements, int passes) {
    Maker maker(plate);
    std::minstd_rand engine{1};
    const auto within = [&](double size) {
        return size * (0.1 + 0.8 * static_cast<double>(engine() % 1000) / 1000);
    };
    for (long done = 0; done < elements; done += runLength) {
        const check::Place start{within(plate.width), within(plate.height), 0};
        const auto seed = static_cast<unsigned>(engine());
        for (int pass = 1; pass <= passes; ++pass) {
            maker.across(start);
            maker.height(-0.5 * pass);
            maker.run(seed, std::min(runLength, elements - done));
            maker.height(5);
        }
    }
    return maker.finish();
}

} // namespace torvik
