// SPDX-License-Identifier: MIT
// Preparing drawings: polylines read, fitted, written and checked; strokes put in order; a pocket
// cleared round what stands in it.
#include "bench/polylines.h"
#include "prepare/placing/order.h"
#include "prepare/prepare.h"

#include <benchmark/benchmark.h>

namespace torvik {
namespace {

void preparePolylines(benchmark::State& state) {
    const std::string drawing = polylineDrawing(static_cast<std::size_t>(state.range(0)));
    PreparedDrawing prepared;
    for (auto _ : state)
        prepared = prepareDrawing(readHpgl(drawing, "drawing"), {});
    if (prepared.report.fit.circles == 0 || prepared.report.fit.arcs == 0)
        state.SkipWithError("no circles and arcs were made");
    state.SetBytesProcessed(state.iterations() * static_cast<long>(drawing.size()));
    state.counters["elements"] = static_cast<double>(prepared.report.elementsAfter);
}

void readPolylines(benchmark::State& state) {
    const std::string drawing = polylineDrawing(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(readHpgl(drawing, "drawing"));
    state.SetBytesProcessed(state.iterations() * static_cast<long>(drawing.size()));
}

// What is saved of the way between strokes is told in hundredths.
void order(benchmark::State& state) {
    const auto strokes = readHpgl(scatteredDrawing(state.range(0)), "drawing").strokes;
    double saved = 0;
    for (auto _ : state) {
        auto ordered = strokes;
        orderStrokes(ordered);
        saved = 100 * (1 - airLength(ordered) / airLength(strokes));
    }
    if (saved < 60)
        state.SkipWithError("the way was not made shorter");
    state.counters["saved_percent"] = saved;
}

std::string placeOf(int x, int y) {
    return std::to_string(x) + "," + std::to_string(y);
}

// A square of 100 mm with 30 islands: circles, squares, half discs.
std::string pocketDrawing() {
    std::string drawing = "SP1;PU0,0;PD4000,0,4000,4000,0,4000,0,0;";
    for (int i = 0; i < 30; ++i) {
        const int x = 400 + i % 6 * 640;
        const int y = 500 + i / 6 * 750;
        drawing += "PU" + placeOf(x, y) + ";";
        if (i % 3 == 0)
            drawing += "CI150;";
        else if (i % 3 == 1)
            drawing += "PD" + placeOf(x + 200, y) + "," + placeOf(x + 200, y + 200) + "," +
                       placeOf(x, y + 200) + "," + placeOf(x, y) + ";";
        else
            drawing += "PD;AA" + placeOf(x + 100, y) + ",180;PD" + placeOf(x, y) + ";";
    }
    return drawing;
}

void clearPocket(benchmark::State& state) {
    PrepareOptions options;
    options.beside.runs[1] = {RunSide::pocket, 3, 40};
    PreparedDrawing prepared;
    for (auto _ : state)
        prepared = prepareDrawing(readHpgl(pocketDrawing(), "drawing"), options);
    if (prepared.report.cutAfter < 100 * 100 / 1.2 / 2)
        state.SkipWithError("the pocket was not cleared");
    state.counters["elements"] = static_cast<double>(prepared.report.elementsAfter);
}

BENCHMARK(preparePolylines)
    ->Name("preparing polylines")
    ->Arg(500'000)
    ->Arg(5'000'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readPolylines)->Name("reading polylines")->Arg(5'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(order)->Name("ordering strokes")->Arg(3000)->Arg(30'000)->Unit(benchmark::kMillisecond);
BENCHMARK(clearPocket)->Name("clearing a pocket with islands")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace torvik
