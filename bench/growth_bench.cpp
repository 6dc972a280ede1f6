// SPDX-License-Identifier: MIT
// The whole road from a drawing to its program, in memory, for each kind of element: lines and arcs
// are cut in ten passes, circles are drilled.
#include "base/logger.h"
#include "bench/drawings.h"
#include "bench/ten_passes.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "gcode/program_output.h"
#include "job/job.h"
#include "tools/tool_list.h"

#include <benchmark/benchmark.h>

namespace torvik {
namespace {

class LineCounter final : public ByteSink {
public:
    void write(std::string_view bytes) override { m_lines += lineEndsIn(bytes); }
    std::int64_t lines() const { return m_lines; }

private:
    std::int64_t m_lines = 0;
};

void make(benchmark::State& state, const std::string& drawing) {
    const ToolList tools{{{1, "Slot drill", 6}}, 1, {}, 0};
    Logger logger;
    LineCounter counter;
    for (auto _ : state)
        writeProgram(jobInTenPasses(drawing, logger), tools, dialects().front(), 1, counter,
                     logger);
    if (counter.lines() < state.iterations() * state.range(0) * 10)
        state.SkipWithError("the program was not written whole");
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void makeLines(benchmark::State& state) {
    make(state, lineDrawing(state.range(0)));
}

void makeArcs(benchmark::State& state) {
    make(state, arcDrawing(state.range(0)));
}

void makeHoles(benchmark::State& state) {
    make(state, circleDrawing(state.range(0), 100));
}

void makeGrowingHoles(benchmark::State& state) {
    make(state, circleDrawing(state.range(0), state.range(0)));
}

void makeShrinkingHoles(benchmark::State& state) {
    make(state, shrinkingCircles(state.range(0)));
}

BENCHMARK(makeLines)->Name("from drawing to program, lines")->Arg(3000)->Arg(30000);
BENCHMARK(makeArcs)->Name("from drawing to program, arcs")->Arg(3000)->Arg(30000);
BENCHMARK(makeHoles)->Name("from drawing to program, holes of 100 sizes")->Arg(3000)->Arg(30000);
BENCHMARK(makeGrowingHoles)
    ->Name("from drawing to program, each hole larger than the last")
    ->Arg(3000)
    ->Arg(30000);
BENCHMARK(makeShrinkingHoles)
    ->Name("from drawing to program, each hole smaller than the last")
    ->Arg(3000)
    ->Arg(30000);

} // namespace
} // namespace torvik
