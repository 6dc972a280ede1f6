// SPDX-License-Identifier: MIT
// Recognising the circles of a pen in 1 000 sizes, and making a group for each.
#include "base/logger.h"
#include "bench/drawings.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "job/pens.h"

#include <benchmark/benchmark.h>

namespace torvik {
namespace {

void recogniseCircles(benchmark::State& state) {
    constexpr long sizes = 1000;
    Logger logger;
    Job job;
    readInstructions(job.drawing, circleDrawing(state.range(0), sizes), "drawing", logger);
    for (auto _ : state)
        SetUpPens(job, logger);
    if (job.answers.gudtPens[1].intRadiusCount != sizes)
        state.SkipWithError("the sizes were not found");
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(recogniseCircles)->Name("recognising circles")->Arg(3000)->Arg(30000);

} // namespace
} // namespace torvik
