// SPDX-License-Identifier: MIT
#include "bench/drawings.h"

#include <random>

namespace torvik {
namespace {

constexpr long sheetWidth = 16000; // plotter units
constexpr long sheetHeight = 12000;

// The standard fixes the numbers of this engine, but not how its distributions use them.
class Numbers {
public:
    std::string below(long limit) { return std::to_string(static_cast<long>(m_engine()) % limit); }
    std::string point() {
        std::string text =
            below(sheetWidth); // before the height, whatever the compiler evaluates first
        return text + "," + below(sheetHeight);
    }

private:
    std::minstd_rand m_engine{1};
};

const char* const start = "IN;\nSP1;\n";
const char* const end = "SP0;\n";

template <typename RadiusOf>
std::string circlesOf(long circles, RadiusOf radiusOf) {
    Numbers numbers;
    std::string text = start;
    for (long i = 0; i < circles; ++i) {
        text += "PU" + numbers.point() + ";\n";
        text += "CI" + std::to_string(radiusOf(i)) + ";\n";
    }
    return text + end;
}

} // namespace

std::string lineDrawing(long lines) {
    Numbers numbers;
    std::string text = start;
    for (long i = 0; i < lines; ++i)
        text += "PD" + numbers.point() + ";\n";
    return text + end;
}

std::string arcDrawing(long arcs) {
    Numbers numbers;
    std::string text = start;
    for (long i = 0; i < arcs; ++i) {
        text += "AA" + numbers.point() + ",";
        text += (i % 2 == 0 ? "" : "-") + numbers.below(360) + ";\n";
    }
    return text + end;
}

std::string circleDrawing(long circles, long sizes, long smallest) {
    return circlesOf(circles, [=](long i) { return smallest + i % sizes; });
}

std::string shrinkingCircles(long circles) {
    return circlesOf(circles, [=](long i) { return smallestRadius + circles - i; });
}

} // namespace torvik
