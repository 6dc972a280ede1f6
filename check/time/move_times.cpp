// SPDX-License-Identifier: MIT
#include "check/time/move_times.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <utility>

namespace torvik::check {
namespace {

using Direction = std::array<double, 3>;

// How far a machine may leave the corner between two moves (mm): this tells how fast it passes.
constexpr double cornerDeviation = 0.02;

double squareOf(double value) {
    return value * value;
}

// A move as the drives see it.
struct Way {
    double length = 0; // mm
    double speed = 0;  // mm/s, the highest
    Direction start{}; // of length 1
    Direction end{};
    bool isFed = false;

    bool isMade() const { return length > 0 && speed > 0; }
};

double radiusOf(const Move& arc) {
    return std::hypot(arc.from.x - arc.centre.x, arc.from.y - arc.centre.y);
}

double lengthOf(const Move& move) {
    if (move.isArc())
        return move.sweep() * radiusOf(move);
    if (move.kind == MoveKind::rapidHeight || move.kind == MoveKind::feedHeight)
        return std::fabs(move.to.z - move.from.z);
    return std::hypot(move.to.x - move.from.x, move.to.y - move.from.y);
}

// mm/s
double speedOf(const Move& move, const Pace& pace) {
    if (move.kind == MoveKind::rapidHeight)
        return pace.rapidZ / 60;
    if (move.kind == MoveKind::rapidAcross)
        return pace.rapid / 60;
    double cap = pace.feedCap / 60;
    if (move.kind == MoveKind::feedHeight)
        cap = std::min(cap, pace.rapidZ / 60);
    if (move.isArc())
        cap = std::min(cap, std::sqrt(pace.acceleration * radiusOf(move)));
    return std::min(move.feed / 60, cap);
}

// How an arc runs at one of its ends.
Direction tangent(const Move& arc, const Place& at) {
    const double turn = arc.kind == MoveKind::cutClockwise ? -1 : 1;
    const double x = at.x - arc.centre.x;
    const double y = at.y - arc.centre.y;
    const double radius = std::hypot(x, y);
    return {-turn * y / radius, turn * x / radius, 0};
}

Way wayOf(const Move& move, const Pace& pace) {
    Way way;
    if (!move.isFed() && !move.isRapid())
        return way;
    way.length = lengthOf(move);
    way.speed = speedOf(move, pace);
    way.isFed = move.isFed();
    if (!std::isfinite(way.length) || !std::isfinite(way.speed) || !way.isMade())
        return {};
    if (move.isArc()) {
        way.start = tangent(move, move.from);
        way.end = tangent(move, move.to);
    } else if (move.kind == MoveKind::cutLine || move.kind == MoveKind::rapidAcross) {
        way.start = {(move.to.x - move.from.x) / way.length, (move.to.y - move.from.y) / way.length,
                     0};
        way.end = way.start;
    } else {
        way.start = way.end = {0, 0, move.to.z > move.from.z ? 1.0 : -1.0};
    }
    return way;
}

// The speed at which a machine passes from one way to the next: that of an arc which leaves the
// corner by the deviation.
double cornerSpeed(const Way& way, const Way& next, double acceleration) {
    if (!way.isFed || !next.isFed)
        return 0;
    double cosine = 0;
    for (std::size_t i = 0; i < way.end.size(); ++i)
        cosine += way.end[i] * next.start[i];
    const double halfSine = std::sqrt(std::clamp((1 + cosine) / 2, 0.0, 1.0)); // 1: straight on
    const double most = std::min(way.speed, next.speed);
    if (halfSine > 1 - 1e-9)
        return most;
    return std::min(most, std::sqrt(acceleration * cornerDeviation * halfSine / (1 - halfSine)));
}

// With these speeds at its ends, which are reached within its length.
double secondsBetween(const Way& way, double first, double last, double acceleration) {
    const double reached = (squareOf(first) + squareOf(last)) / 2 + acceleration * way.length;
    const double top = std::max({std::min(way.speed, std::sqrt(reached)), first, last});
    const double changing =
        (2 * squareOf(top) - squareOf(first) - squareOf(last)) / (2 * acceleration);
    return (2 * top - first - last) / acceleration + std::max(way.length - changing, 0.0) / top;
}

// Ways that follow one another without a pause, from stand to stand.
void lookAhead(std::span<const Way> ways, double acceleration, std::span<MoveTime> times) {
    std::vector<double> corners(ways.size() + 1, 0.0);
    for (std::size_t i = 1; i < ways.size(); ++i)
        corners[i] = cornerSpeed(ways[i - 1], ways[i], acceleration);
    for (std::size_t i = ways.size(); i-- > 0;)
        corners[i] = std::min(
            corners[i], std::sqrt(squareOf(corners[i + 1]) + 2 * acceleration * ways[i].length));
    for (std::size_t i = 0; i < ways.size(); ++i) {
        corners[i + 1] = std::min(
            corners[i + 1], std::sqrt(squareOf(corners[i]) + 2 * acceleration * ways[i].length));
        times[i].lookAhead = secondsBetween(ways[i], corners[i], corners[i + 1], acceleration);
    }
}

// Tells how long the machine waits at a move that is no way.
class Pauses {
public:
    explicit Pauses(const Pace& pace) : m_pace(pace) {}

    double secondsOf(const Move& move) {
        if (move.kind == MoveKind::dwell)
            return move.value > 0 && std::isfinite(move.value) ? move.value : 0;
        if (move.kind == MoveKind::tool)
            return std::exchange(m_hasTool, true) ? m_pace.toolChange : 0;
        if (move.kind == MoveKind::spindleOff)
            m_speed = 0;
        if (move.kind != MoveKind::spindleOn || !(move.value > 0))
            return 0;
        return std::exchange(m_speed, move.value) == move.value ? 0 : m_pace.spindleStart;
    }

private:
    const Pace& m_pace;
    bool m_hasTool = false;
    double m_speed = 0; // rpm
};

} // namespace

double secondsFromStandToStand(double length, double speed, double acceleration) {
    if (!(length > 0) || !(speed > 0) || !(acceleration > 0))
        return 0;
    return length * acceleration >= speed * speed ? length / speed + speed / acceleration
                                                  : 2 * std::sqrt(length / acceleration);
}

std::vector<MoveTime> moveTimes(const Moves& moves, const Pace& pace) {
    std::vector<MoveTime> times(moves.size());
    std::vector<Way> ways(moves.size());
    Pauses pauses(pace);
    for (std::size_t i = 0; i < moves.size(); ++i) {
        ways[i] = wayOf(moves[i], pace);
        if (!ways[i].isMade())
            times[i].exactStop = times[i].lookAhead = pauses.secondsOf(moves[i]);
        else
            times[i].exactStop =
                secondsFromStandToStand(ways[i].length, ways[i].speed, pace.acceleration);
    }
    for (std::size_t first = 0; first < ways.size();) {
        std::size_t end = first;
        while (end < ways.size() && ways[end].isMade())
            ++end;
        lookAhead(std::span(ways).subspan(first, end - first), pace.acceleration,
                  std::span(times).subspan(first, end - first));
        first = end + 1;
    }
    return times;
}

} // namespace torvik::check
