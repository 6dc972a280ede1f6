// SPDX-License-Identifier: MIT
#include "prepare/beside/beside.h"

#include "base/errors.h"
#include "job/hpgl_reader.h"
#include "prepare/beside/crossings.h"
#include "prepare/beside/outline_start.h"
#include "prepare/beside/outlines.h"
#include "prepare/beside/pocket.h"
#include "prepare/beside/tabs.h"

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

// Of the tolerance: the rest is for the fitting.
constexpr double chordShare = 0.25;
// What an inner corner may keep, in mm, before it is told.
constexpr double smallRest = 0.1;

// Inside of the small three-cornered places that corners leave.
Point middleOf(const Corners& corners) {
    Point sum;
    for (const Point& corner : corners)
        sum = sum + corner;
    return sum * (1.0 / static_cast<double>(corners.size()));
}

class PenRunner {
public:
    PenRunner(int pen, const PenRun& run, double tolerance, BesideReport& report)
        : m_pen(pen), m_run(run), m_radius(run.diameter / 2 * plotterUnitsPerMm),
          m_tolerance(tolerance), m_chord(tolerance * chordShare), m_report(report) {}

    std::vector<Stroke> strokes(std::vector<Stroke> drawn) {
        Outlines outlines = outlinesOf(std::move(drawn), m_tolerance);
        m_report.openLines += static_cast<long>(outlines.open.size());
        std::vector<Stroke> result = std::move(outlines.open);
        std::vector<Corners> corners;
        for (const Stroke& outline : outlines.closed)
            corners.push_back(cornersOf(outline, m_chord));
        if (corners.empty())
            return result;
        m_report.outlines += static_cast<long>(corners.size());
        const auto crossings = crossingsOf(corners, mostCrossings);
        m_report.crossings.insert(m_report.crossings.end(), crossings.begin(), crossings.end());
        for (Stroke& stroke : beside(Area::enclosedBy(corners)))
            result.push_back(std::move(stroke));
        return result;
    }

private:
    std::vector<Stroke> beside(const Area& area) {
        const bool isOutside = m_run.side == RunSide::outside;
        const Area way = area.grown(isOutside ? m_radius : -m_radius, m_chord);
        noteUnreached(area, way, isOutside);
        std::vector<Stroke> strokes;
        if (m_run.side == RunSide::pocket) {
            const double step = 2 * m_radius * m_run.stepPercent / 100;
            strokes = pocketStrokes(area, way, {m_radius, step, m_chord});
            for (Stroke& stroke : strokes)
                stroke.pen = m_pen;
            return strokes;
        }
        for (const Corners& corners : way.outlines())
            strokes.push_back(outlineStroke(m_pen, corners));
        return strokes;
    }

    // What the tool's own roundness keeps it from: of the part's hollows, or of the recess.
    void noteUnreached(const Area& area, const Area& way, bool isOutside) {
        const double small = smallRest * plotterUnitsPerMm;
        const Area reached = way.grown(isOutside ? -m_radius : m_radius, m_chord);
        const Area rest = isOutside ? reached.without(area) : area.without(reached);
        const Area deep = isOutside ? reached.grown(-small, m_chord).without(area)
                                    : area.without(reached.grown(small, m_chord));
        std::vector<Patch> patches = rest.patches();
        std::vector<bool> isTold(patches.size(), false);
        for (const Corners& place : deep.outlines())
            for (std::size_t i = 0; i < patches.size(); ++i)
                if (!isTold[i] && patches[i].contains(middleOf(place))) {
                    isTold[i] = true;
                    ++m_report.unreached;
                    m_report.narrow.push_back(outlineStroke(m_pen, patches[i].outline));
                }
    }

    int m_pen;
    const PenRun& m_run;
    double m_radius;
    double m_tolerance;
    double m_chord;
    BesideReport& m_report;
};

std::vector<Stroke> takePen(std::vector<Stroke>& strokes, int pen) {
    const auto others = std::stable_partition(strokes.begin(), strokes.end(),
                                              [&](const Stroke& s) { return s.pen != pen; });
    std::vector<Stroke> taken(std::make_move_iterator(others),
                              std::make_move_iterator(strokes.end()));
    strokes.erase(others, strokes.end());
    return taken;
}

void addTabs(std::vector<Stroke>& strokes, const Tabs& tabs, double tool, double tolerance,
             BesideReport& report) {
    const double gap = (tabs.length + tool) * plotterUnitsPerMm;
    std::vector<Stroke> pieces;
    for (const Stroke& stroke : strokes) {
        if (stroke.pen != tabs.from || stroke.isDot() || stroke.start != stroke.end())
            continue;
        std::vector<Stroke> parts = betweenGaps(stroke, tabs.count, gap, tolerance * chordShare);
        report.tabs += static_cast<long>(parts.size());
        report.withoutTabs += parts.empty() ? 1 : 0;
        for (Stroke& part : parts) {
            part.pen = tabs.to;
            pieces.push_back(std::move(part));
        }
    }
    strokes.insert(strokes.end(), std::make_move_iterator(pieces.begin()),
                   std::make_move_iterator(pieces.end()));
}

} // namespace

void runBeside(std::vector<Stroke>& strokes, const RunOptions& options, double tolerance,
               BesideReport& report) {
    for (const auto& [pen, run] : options.runs) {
        std::vector<Stroke> drawn = takePen(strokes, pen);
        if (drawn.empty())
            continue;
        report.tools[pen] = run.diameter;
        std::vector<Stroke> beside =
            PenRunner(pen, run, tolerance, report).strokes(std::move(drawn));
        if (beside.empty())
            throw RunTimeError("the tool of pen " + std::to_string(pen) +
                               " is too wide to get in anywhere");
        strokes.insert(strokes.end(), std::make_move_iterator(beside.begin()),
                       std::make_move_iterator(beside.end()));
    }
    for (const Tabs& tabs : options.tabs) {
        const auto tool = report.tools.find(tabs.from);
        addTabs(strokes, tabs, tool == report.tools.end() ? 0 : tool->second, tolerance, report);
        if (tool != report.tools.end() && report.tabs > 0)
            report.tools[tabs.to] = tool->second;
    }
    std::stable_sort(strokes.begin(), strokes.end(),
                     [](const Stroke& a, const Stroke& b) { return a.pen < b.pen; });
}

ExactCircles::ExactCircles(const std::vector<Stroke>& strokes, const RunOptions& options) {
    for (const Stroke& stroke : strokes) {
        const auto run = options.runs.find(stroke.pen);
        if (run == options.runs.end() || !stroke.isCircle())
            continue;
        const Point centre = stroke.segments[0].first;
        const double radius = distance(centre, stroke.start);
        const double half = run->second.diameter / 2 * plotterUnitsPerMm;
        for (const double beside : {radius + half, radius - half})
            if (beside > 0)
                m_circles.push_back({stroke.pen, centre, beside});
    }
}

void ExactCircles::settle(std::vector<Stroke>& strokes, double tolerance) const {
    for (Stroke& stroke : strokes) {
        if (!stroke.isCircle())
            continue;
        const Point centre = stroke.segments[0].first;
        const double radius = distance(centre, stroke.start);
        for (const Circle& exact : m_circles)
            if (exact.pen == stroke.pen && std::fabs(exact.radius - radius) < tolerance &&
                distance(exact.centre, centre) < tolerance)
                stroke = circleStroke(stroke.pen, exact.centre, exact.radius);
    }
}

} // namespace torvik
