// SPDX-License-Identifier: MIT
// The piece of a long program, 30 000 elements in ten passes: the whole sweep with what is kept of
// it, on one thread and on two, and the piece at a move to which somebody jumps.
#include "bench/long_program.h"
#include "sweep/growth.h"

#include <benchmark/benchmark.h>
#include <random>

namespace torvik {
namespace {

constexpr PlateSize sheet{400, 300}; // mm
constexpr PlateSize badge{100, 80};

sweep::Area areaOf(PlateSize plate) {
    return {0, 0, plate.width, plate.height};
}

void sweepAll(benchmark::State& state, PlateSize plate, double diameter) {
    const check::Moves moves = longProgram(plate);
    for (auto _ : state) {
        sweep::Growth growth(moves, {{1, diameter}}, areaOf(plate));
        if (!growth.build({static_cast<int>(state.range(0))}))
            state.SkipWithError("the sweep did not end");
    }
}

void jump(benchmark::State& state, PlateSize plate, double diameter) {
    const check::Moves moves = longProgram(plate);
    sweep::Growth growth(moves, {{1, diameter}}, areaOf(plate));
    growth.build({});
    std::minstd_rand engine{1};
    for (auto _ : state)
        growth.show(engine() % moves.size());
}

void threads(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgName("threads")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK_CAPTURE(sweepAll, sheet, sheet, 3.0)->Name("sweeping a sheet, 3 mm tool")->Apply(threads);
BENCHMARK_CAPTURE(sweepAll, badge, badge, 10.0)
    ->Name("sweeping a badge, 10 mm tool")
    ->Apply(threads);
BENCHMARK_CAPTURE(jump, sheet, sheet, 3.0)
    ->Name("jumping to a move, 3 mm tool")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(jump, badge, badge, 10.0)
    ->Name("jumping to a move, 10 mm tool")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
} // namespace torvik
