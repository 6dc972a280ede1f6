// SPDX-License-Identifier: MIT
// The fitting of one stroke: in passes, until a pass changes nothing more. Every piece knows which
// of the stroke's own points it stands for and is measured against them at the end.
#pragma once

#include "prepare/fitting/fit.h"

#include <cstddef>
#include <span>
#include <vector>

namespace torvik {

class StrokeFitter {
public:
    StrokeFitter(Stroke stroke, const FitOptions& options, FitReport& report)
        : m_stroke(std::move(stroke)), m_options(options), m_report(report) {}

    Stroke fitted();

private:
    struct Piece {
        Segment segment;
        std::size_t last = 0; // the own point that it reaches
        double bulge = 0;

        bool operator==(const Piece&) const = default;
    };

    void expand();
    void takeCurveApart(Point start, const Segment& curve);
    void takeOwn(Point start, const Segment& segment);
    void addOwn(const Segment& segment);
    bool pass();
    void fitRun(std::size_t first, std::size_t last, std::vector<Piece>& result) const;
    void joinArcs(std::vector<Piece>& pieces) const;
    void makeReadable(std::vector<Piece>& pieces) const;
    void settlePieces(std::vector<Piece>& pieces) const;
    bool becomesCircleInPasses();
    bool becomesCircle();
    bool becomesCircleOfLines();
    bool becomesCircleOfArcs();
    bool isCircleThroughOwnPoints(Point centre, double radius);
    bool repair();
    double deviation(Point from, const Segment& segment, std::size_t first, std::size_t last) const;
    bool isClosed() const;

    Stroke m_stroke;
    const FitOptions& m_options;
    FitReport& m_report;
    std::vector<Point> m_points; // the stroke's own, the start first
    std::vector<Piece> m_own;    // as the stroke came, curves taken apart
    std::vector<Piece> m_pieces;
    double m_deviation = 0;
    double m_nearCircleTolerance = 0; // with which it would be a circle
    bool m_keepsOwn = false;
};

} // namespace torvik
