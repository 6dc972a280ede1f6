// SPDX-License-Identifier: MIT
// Reading SVG pictures (few long paths, and many small shapes with groups and a style sheet) and
// CAD drawings.
#include "base/picture.h"
#include "prepare/dxf/dxf_source.h"
#include "prepare/svg/svg_source.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <string>

namespace torvik {
namespace {

constexpr int decimals = 3;

// Numbers that are the same on every machine.
class Numbers {
public:
    double upTo(double most) {
        m_seed = m_seed * 1664525U + 1013904223U;
        return most * m_seed / 4294967296.0;
    }
    // Never 0, for no shape shall be without size.
    std::string text(double most) { return formatFixed(0.5 + upTo(most), decimals); }
    std::string pair(double most) { return text(most) + "," + text(most); }

private:
    std::uint32_t m_seed = 1;
};

std::string pictureOf(const std::string& content) {
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width="400mm" height="300mm" )"
           R"(viewBox="0 0 400 300"><style>.cut { fill: none; stroke: #000 } )"
           R"(g > .mark { stroke: red; stroke-dasharray: 2 1 }</style>)" +
           content + "</svg>";
}

// Paths of a thousand pieces each: lines, curves, arcs.
std::string longPaths(std::size_t bytes) {
    constexpr int pieces = 1000;
    constexpr double step = 5;
    Numbers numbers;
    std::string content;
    while (content.size() < bytes) {
        content += R"(<path class="cut" d="M)" + numbers.pair(300);
        for (int i = 0; i < pieces; ++i) {
            const double kind = numbers.upTo(3);
            if (kind < 1)
                content += "L" + numbers.pair(300);
            else if (kind < 2)
                content +=
                    "c" + numbers.pair(step) + " " + numbers.pair(step) + " " + numbers.pair(step);
            else
                content += "a" + numbers.pair(step) + " 30 0 1 " + numbers.pair(step);
        }
        content += "z\"/>\n";
    }
    return pictureOf(content);
}

// A group for every shape, styled by the sheet, by attributes and in place.
std::string smallShapes(std::size_t bytes) {
    Numbers numbers;
    std::string content;
    while (content.size() < bytes) {
        content += R"s(<g transform="translate()s" + numbers.pair(300) + R"s() rotate(30)">)s";
        content += R"(<path class="cut" d="m0 0 l)" + numbers.pair(9) + " " + numbers.pair(9) +
                   R"( z"/><circle style="fill:none;stroke:#0000ff;stroke-width:0.1" r=")" +
                   numbers.text(9) + R"("/><rect class="mark cut" fill="none" width=")" +
                   numbers.text(9) + R"(" height=")" + numbers.text(9) + "\"/></g>\n";
    }
    return pictureOf(content);
}

std::string group(int code, const std::string& value) {
    return std::to_string(code) + "\n" + value + "\n";
}

// The codes of a place in X and in Y.
std::string place(int code, double most, Numbers& numbers) {
    return group(code, numbers.text(most)) + group(code + 10, numbers.text(most));
}

std::string cadLine(Numbers& numbers) {
    return group(0, "LINE") + group(8, "Cut") + place(10, 300, numbers) + place(11, 300, numbers);
}

std::string cadArc(Numbers& numbers) {
    return group(0, "ARC") + group(8, "Cut") + place(10, 300, numbers) +
           group(40, numbers.text(20)) + group(50, numbers.text(170)) +
           group(51, formatFixed(180 + numbers.upTo(170), decimals));
}

// A closed row of lines and bulges.
std::string cadPolyline(Numbers& numbers) {
    constexpr int corners = 20;
    std::string text = group(0, "LWPOLYLINE") + group(8, "0") + group(62, "1") + group(70, "1");
    for (int i = 0; i < corners; ++i)
        text += place(10, 300, numbers) + (i % 2 == 0 ? group(42, numbers.text(1)) : "");
    return text;
}

// Of the third degree, in pieces, every second one with weights.
std::string cadSpline(Numbers& numbers) {
    constexpr int controls = 12;
    constexpr int degree = 3;
    std::string text = group(0, "SPLINE") + group(8, "Curves") + group(71, std::to_string(degree));
    for (int i = 0; i < controls + degree + 1; ++i)
        text += group(40, std::to_string(std::clamp(i - degree, 0, controls - degree)));
    const bool isWeighted = numbers.upTo(2) < 1;
    for (int i = 0; i < controls; ++i)
        text += place(10, 300, numbers) + (isWeighted ? group(41, numbers.text(2)) : "");
    return text;
}

std::string cadUse(Numbers& numbers) {
    return group(0, "INSERT") + group(2, "Hole") + place(10, 300, numbers) +
           group(50, numbers.text(360));
}

std::string cadDrawing(std::size_t bytes) {
    constexpr std::array makers{cadLine, cadArc, cadPolyline, cadSpline, cadUse};
    Numbers numbers;
    std::string text = group(0, "SECTION") + group(2, "HEADER") + group(9, "$INSUNITS") +
                       group(70, "4") + group(0, "ENDSEC") + group(0, "SECTION") +
                       group(2, "BLOCKS") + group(0, "BLOCK") + group(2, "Hole");
    for (int i = 0; i < 4; ++i)
        text += cadLine(numbers) + cadArc(numbers);
    text += group(0, "ENDBLK") + group(0, "ENDSEC") + group(0, "SECTION") + group(2, "ENTITIES");
    for (std::size_t i = 0; text.size() < bytes; ++i)
        text += makers[i % makers.size()](numbers);
    return text + group(0, "ENDSEC") + group(0, "EOF");
}

template <typename Reader>
void read(benchmark::State& state, const std::string& picture, Reader reader) {
    SourceDrawing drawing;
    for (auto _ : state)
        drawing = reader(picture, "picture", SourceOptions{});
    if (drawing.strokes.empty() || !drawing.report.leftOut.empty() ||
        drawing.report.lost(Loss::malformed) > 0)
        state.SkipWithError("the picture was not read");
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(picture.size()));
    state.counters["strokes"] = static_cast<double>(drawing.strokes.size());
}

void readLongPaths(benchmark::State& state) {
    read(state, longPaths(static_cast<std::size_t>(state.range(0))), readSvg);
}

void readSmallShapes(benchmark::State& state) {
    read(state, smallShapes(static_cast<std::size_t>(state.range(0))), readSvg);
}

void readCad(benchmark::State& state) {
    read(state, cadDrawing(static_cast<std::size_t>(state.range(0))), readDxf);
}

BENCHMARK(readLongPaths)
    ->Name("reading a picture of long paths")
    ->Arg(500'000)
    ->Arg(5'000'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readSmallShapes)
    ->Name("reading a picture of small shapes")
    ->Arg(500'000)
    ->Arg(5'000'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readCad)
    ->Name("reading a CAD drawing")
    ->Arg(500'000)
    ->Arg(5'000'000)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace torvik
