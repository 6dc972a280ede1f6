// SPDX-License-Identifier: MIT
// The tool beside the line: the closed outlines of a pen are run outside or inside by half a tool,
// or cleared, and tabs are left. Plotter units, but for the options, which are mm.
#pragma once

#include "prepare/beside/run_options.h"
#include "prepare/strokes.h"

#include <map>
#include <vector>

namespace torvik {

struct BesideReport {
    long outlines = 0;            // that the tool runs beside
    long openLines = 0;           // of such pens, left on the line
    std::vector<Point> crossings; // where outlines cross; at most mostCrossings
    long unreached = 0;           // places too narrow for the tool
    std::vector<Stroke> narrow;   // their outlines
    long tabs = 0;
    long withoutTabs = 0;        // outlines too short for their tabs
    std::map<int, double> tools; // mm, by pen
};

inline constexpr std::size_t mostCrossings = 100;

// `tolerance` is that of the whole preparation.
void runBeside(std::vector<Stroke>& strokes, const RunOptions& options, double tolerance,
               BesideReport& report);

// Circles that are one beside a circle of the drawing get its very middle and radius.
class ExactCircles {
public:
    ExactCircles() = default;
    ExactCircles(const std::vector<Stroke>& strokes, const RunOptions& options);

    void settle(std::vector<Stroke>& strokes, double tolerance) const;

private:
    struct Circle {
        int pen;
        Point centre;
        double radius;
    };
    std::vector<Circle> m_circles;
};

} // namespace torvik
