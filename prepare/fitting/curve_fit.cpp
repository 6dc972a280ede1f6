// SPDX-License-Identifier: MIT
#include "prepare/fitting/curve_fit.h"

#include "prepare/arcs.h"
#include "prepare/fitting/grid.h"

#include <algorithm>
#include <array>
#include <optional>

namespace torvik {
namespace {

constexpr int sampleCount = 12; // of each piece, its start not counted
constexpr int deepest = 14;     // halvings

using Samples = std::array<Point, sampleCount + 1>;

bool followsLine(const Samples& samples, double tolerance) {
    const Point along = samples.back() - samples.front();
    double before = 0;
    return std::all_of(samples.begin(), samples.end(), [&](const Point& sample) {
        const double progress = dot(sample - samples.front(), along);
        const bool goesOn = progress >= before;
        before = progress;
        return goesOn && distanceToLine(samples.front(), samples.back(), sample) <= tolerance;
    });
}

// The arc through start, middle and end where the curve keeps to it.
std::optional<double> followedSweep(const Samples& samples, double tolerance) {
    const Point middle = samples[sampleCount / 2];
    const auto centre = centreThrough(samples.front(), middle, samples.back());
    if (!centre)
        return {};
    const double radius = distance(*centre, samples.front());
    if (radius > largestFittedRadius || radius <= tolerance)
        return {};
    const double sweep = sweepThrough(*centre, samples.front(), middle, samples.back());
    double turned = 0;
    Point before = samples.front() - *centre;
    for (const Point& sample : samples) {
        const Point next = sample - *centre;
        const double turn = angleBetween(before, next);
        if (turn * sweep < 0 || std::fabs(length(next) - radius) > tolerance)
            return {};
        turned += turn;
        before = next;
    }
    return std::fabs(turned - sweep) < 1 ? std::optional(sweep) : std::nullopt;
}

class CurveFitter {
public:
    CurveFitter(Point start, const Segment& curve, const FitOptions& options)
        : m_start(start), m_curve(curve), m_options(options), m_place(toGrid(start)) {}

    // Half the tolerance is left for what becomes of the pieces later.
    void fit(double from, double to, int depth) {
        const Samples samples = sampled(from, to);
        const double tolerance = m_options.tolerance / 2;
        if (depth == deepest || followsLine(samples, tolerance)) {
            add(lineSegment(toGrid(samples.back())), samples);
            return;
        }
        if (m_options.arcs) {
            if (const auto sweep = followedSweep(samples, tolerance)) {
                add(gridArc(m_place, toGrid(samples.back()), *sweep), samples);
                return;
            }
        }
        const double middle = (from + to) / 2;
        fit(from, middle, depth + 1);
        fit(middle, to, depth + 1);
    }

    std::vector<CurvePiece> takePieces() { return std::move(m_pieces); }

private:
    Samples sampled(double from, double to) const {
        Samples samples;
        for (int i = 0; i <= sampleCount; ++i)
            samples[static_cast<std::size_t>(i)] =
                pointOnCurve(m_start, m_curve, from + (to - from) * i / sampleCount);
        if (to == 1)
            samples.back() = m_curve.end;
        return samples;
    }

    void add(const Segment& segment, const Samples& samples) {
        m_place = segment.end;
        m_pieces.push_back({segment, {samples.begin() + 1, samples.end()}});
    }

    Point m_start;
    const Segment& m_curve;
    const FitOptions& m_options;
    Point m_place;
    std::vector<CurvePiece> m_pieces;
};

} // namespace

std::vector<CurvePiece> fitCurve(Point start, const Segment& curve, const FitOptions& options) {
    CurveFitter fitter(start, curve, options);
    fitter.fit(0, 1, 0);
    return fitter.takePieces();
}

} // namespace torvik
