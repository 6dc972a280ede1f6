// SPDX-License-Identifier: MIT
// Preparing drawings: polylines read, fitted, written and checked; strokes put in order.
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

BENCHMARK(preparePolylines)
    ->Name("preparing polylines")
    ->Arg(500'000)
    ->Arg(5'000'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readPolylines)->Name("reading polylines")->Arg(5'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(order)->Name("ordering strokes")->Arg(1000)->Arg(10'000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace torvik
