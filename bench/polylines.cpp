// SPDX-License-Identifier: MIT
#include "bench/polylines.h"

#include "base/picture.h"

#include <cmath>
#include <cstdint>
#include <numbers>

namespace torvik {
namespace {

constexpr double sheet = 16000; // plotter units

class PolylineMaker {
public:
    std::size_t size() const { return m_text.size(); }
    std::string take() { return std::move(m_text); }
    void end() { m_text += ";\n"; }

    // The same drawing on every machine, so no library's distribution.
    double random() {
        m_seed = m_seed * 1664525U + 1013904223U;
        return m_seed / 4294967296.0;
    }

    void put(double x, double y) {
        m_text += m_isFirst ? "PU" : m_isSecond ? ";PD" : ",";
        m_text += formatFixed(x, 2) + "," + formatFixed(y, 2);
        m_isSecond = m_isFirst;
        m_isFirst = false;
    }
    void begin() { m_isFirst = true; }

    void putArc(double x, double y, double radius, double from, double to, int chords) {
        for (int i = 0; i <= chords; ++i) {
            const double angle = (from + (to - from) * i / chords) * std::numbers::pi / 180;
            put(x + radius * std::cos(angle), y + radius * std::sin(angle));
        }
    }

private:
    std::string m_text = "IN;SP1;\n";
    std::uint32_t m_seed = 1;
    bool m_isFirst = true;
    bool m_isSecond = false;
};

} // namespace

std::string polylineDrawing(std::size_t bytes) {
    PolylineMaker maker;
    while (maker.size() < bytes) {
        const double x = maker.random() * sheet;
        const double y = maker.random() * sheet;
        const double radius = 20 + maker.random() * 400;
        maker.begin();
        maker.putArc(x, y, radius, 0, 360, 60);
        maker.end();
        maker.begin();
        maker.putArc(x, y, radius, 90, 270, 30);
        for (int i = 1; i < 30; ++i)
            maker.put(x + i * 20, y - radius);
        maker.putArc(x + 600, y, radius, -90, 90, 30);
        maker.put(x, y + radius);
        maker.end();
    }
    return maker.take();
}

std::string scatteredDrawing(long strokes) {
    PolylineMaker maker;
    for (long i = 0; i < strokes; ++i) {
        const double x = maker.random() * sheet;
        const double y = maker.random() * sheet;
        maker.begin();
        maker.put(x, y);
        maker.put(x + maker.random() * 100, y + maker.random() * 100);
        maker.end();
    }
    return maker.take();
}

} // namespace torvik
