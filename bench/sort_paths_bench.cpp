// SPDX-License-Identifier: MIT
// Sorting paths by the depth of their groups: eight depths, met in turns.
#include "base/logger.h"
#include "bench/drawings.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "job/pens.h"

#include <algorithm>
#include <benchmark/benchmark.h>

namespace torvik {
namespace {

void sortPaths(benchmark::State& state) {
    Logger logger;
    Job job;
    readInstructions(job.drawing, lineDrawing(state.range(0)), "drawing", logger);
    for (std::int16_t i = 1; i <= job.drawing.gintPathCount; ++i)
        job.drawing.gudtPaths[i].sngSortKey = static_cast<float>(i * 5 % penCount);
    for (auto _ : state)
        SortPaths(job, logger);
    if (!std::is_sorted(job.drawing.gintPathOrder.begin(), job.drawing.gintPathOrder.end(),
                        [&](auto a, auto b) {
                            return job.drawing.gudtPaths[a].sngSortKey <
                                   job.drawing.gudtPaths[b].sngSortKey;
                        }))
        state.SkipWithError("the paths were not sorted");
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(sortPaths)->Name("sorting paths")->Arg(3000)->Arg(30000);

} // namespace
} // namespace torvik
