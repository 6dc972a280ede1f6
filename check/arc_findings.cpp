// SPDX-License-Identifier: MIT
#include "check/finders.h"

namespace torvik::check {
namespace {

constexpr double mostBeside = 0.005; // mm that an arc's end may lie beside its circle
constexpr double shortest = 0.003;   // mm of an arc that a rounded full circle may shrink to
constexpr double half = lengthStep / 2;
constexpr double exact = 1e-6; // mm, where only the arithmetic rounds

void findArc(const Move& arc, Findings& findings) {
    const double startX = arc.from.x - arc.centre.x;
    const double startY = arc.from.y - arc.centre.y;
    const double endX = arc.to.x - arc.centre.x;
    const double endY = arc.to.y - arc.centre.y;
    const double radius = std::hypot(startX, startY);
    const double beside = std::fabs(std::hypot(endX, endY) - radius);
    const double chord = std::hypot(arc.to.x - arc.from.x, arc.to.y - arc.from.y);
    if (radius < half) {
        findings.add(Kind::arcNoRadius, arc.line);
    } else if (beside > mostBeside) {
        findings.add(Kind::arcMisses, arc.line, {lengthText(beside)});
    } else if (chord >= half) {
        const double length = arc.sweep() * radius;
        const double across = std::fabs(startX * endY - startY * endX) / radius;
        const bool isOneWay = startX * endX + startY * endY > 0;
        if (isOneWay && across < exact)
            findings.add(Kind::arcOneAngle, arc.line);
        else if (length < shortest + half)
            findings.add(Kind::arcCollapsed, arc.line, {lengthText(length)});
    }
}

} // namespace

void findArcs(const Walked& walked, Findings& findings) {
    for (const Move& move : walked.moves)
        if (move.isArc())
            findArc(move, findings);
}

} // namespace torvik::check
