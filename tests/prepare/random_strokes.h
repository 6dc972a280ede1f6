// SPDX-License-Identifier: MIT
// Random strokes as drawings have them: lines, chords of arcs, jittered lines, wiggles, arcs,
// curves; at whole units or anywhere.
#pragma once

#include "prepare/arcs.h"
#include "prepare/fitting/grid.h"

#include <numbers>
#include <random>

namespace torvik {

class RandomStrokes {
public:
    explicit RandomStrokes(unsigned seed) : m_random(seed), m_wholeUnits(whole(0, 1) == 0) {}

    double number(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(m_random);
    }
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }

    Stroke stroke() {
        m_stroke = {whole(1, 8), written({number(0, 8000), number(0, 8000)}), {}};
        m_direction = number(0, 360);
        for (int i = whole(1, 10); i > 0; --i)
            addPart();
        if (whole(0, 3) == 0)
            lineTo(m_stroke.start);
        return m_stroke;
    }

private:
    void addPart() {
        switch (whole(0, 6)) {
        case 0:
            return lineTo(m_stroke.end() + anywhere(500));
        case 1:
            return addChords();
        case 2:
            return addJitteredLine();
        case 3:
            return addWiggle();
        case 4:
            return addArc(rotated({number(5, 900), 0}, number(0, 360)));
        case 5: // beside the X axis
            return addArc({number(100, 4000), number(-5, 5)});
        default:
            const Point from = m_stroke.end();
            m_stroke.segments.push_back(
                curveSegment(from + anywhere(800), from + anywhere(800), from + anywhere(800)));
        }
    }

    void addChords() {
        const double sweep = number(-350, 350);
        const Point centre =
            m_stroke.end() + rotated({number(20, 1500), 0}, m_direction + (sweep > 0 ? 90 : -90));
        const Point from = m_stroke.end() - centre;
        const int count = static_cast<int>(std::fabs(sweep) / number(1, 23)) + 1;
        for (int i = 1; i <= count; ++i)
            lineTo(centre + rotated(from, sweep * i / count));
        m_direction += sweep;
    }

    void addJitteredLine() {
        const Point step = rotated({number(1, 60), 0}, m_direction);
        const double jitter = number(0, 0.6);
        Point place = m_stroke.end();
        for (int i = whole(2, 40); i > 0; --i) {
            place = place + step;
            lineTo(place + anywhere(jitter));
        }
    }

    void addWiggle() {
        const double bend = number(-17, 17);
        for (int i = whole(3, 60); i > 0; --i) {
            m_direction += bend + number(-3, 3);
            lineTo(m_stroke.end() + rotated({number(3, 30), 0}, m_direction));
        }
    }

    void addArc(Point toCentre) {
        m_stroke.segments.push_back(
            arcSegment(m_stroke.end(), m_stroke.end() + toCentre, number(-350, 350)));
    }

    void lineTo(Point end) { m_stroke.segments.push_back(lineSegment(written(end))); }
    Point anywhere(double size) { return {number(-size, size), number(-size, size)}; }
    Point written(Point p) const {
        return m_wholeUnits ? Point{std::round(p.x), std::round(p.y)} : p;
    }

    std::mt19937 m_random;
    bool m_wholeUnits;
    Stroke m_stroke;
    double m_direction = 0;
};

} // namespace torvik
