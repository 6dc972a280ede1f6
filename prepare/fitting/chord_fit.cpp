// SPDX-License-Identifier: MIT
#include "prepare/fitting/chord_fit.h"

#include "prepare/fitting/arc_fit.h"
#include "prepare/fitting/grid.h"
#include "prepare/fitting/line_fit.h"

#include <algorithm>
#include <span>

namespace torvik {
namespace {

// Where to go on after a run of chords that is straight: an arc may begin in the second half of
// it. The first half at least is left behind, so that the time stays in proportion to the chords.
std::size_t straightPart(std::span<const Point> points, const ArcRun& run, FitOptions options) {
    options.tolerance /= 4;
    const ArcRun strict = longestArc(points.first(run.chords + 1), options);
    const std::size_t straight = strict.fit.isFlat ? strict.chords : 0;
    return std::max(straight, run.chords / 2);
}

void addLines(std::span<const Point> points, std::size_t first, std::size_t last, double tolerance,
              std::vector<FittedPiece>& pieces) {
    if (first == last)
        return;
    const auto isCorner = findCorners(points.subspan(first, last - first + 1), tolerance);
    for (std::size_t i = first + 1; i <= last; ++i)
        if (isCorner[i - first])
            pieces.push_back({lineSegment(toGrid(points[i])), i, 0});
}

} // namespace

std::vector<FittedPiece> fitChords(std::vector<Point> points, const FitOptions& options) {
    std::vector<FittedPiece> pieces;
    const std::size_t last = points.size() - 1;
    std::size_t linesFrom = 0;
    for (std::size_t at = 0; options.arcs && at + fewestChords <= last;) {
        const auto rest = std::span<const Point>(points).subspan(at);
        const ArcRun run = longestArc(rest, options);
        if (run.chords == 0) {
            ++at;
        } else if (run.fit.isFlat) {
            at += straightPart(rest, run, options);
        } else {
            addLines(points, linesFrom, at, options.tolerance, pieces);
            const std::size_t end = at + run.chords;
            const Segment arc = gridArc(points[at], points[end], run.fit.sweep);
            points[end] = arc.end; // what follows begins where the written arc ends
            pieces.push_back({arc, end, run.fit.bulge});
            at = end;
            linesFrom = end;
        }
    }
    addLines(points, linesFrom, last, options.tolerance, pieces);
    return pieces;
}

} // namespace torvik
