// SPDX-License-Identifier: MIT
// Sorting paths by the depth of their groups: eight depths, met in turns.
#include "job/records.h"
#include "job/sort_paths.h"

#include <algorithm>
#include <benchmark/benchmark.h>

namespace torvik {
namespace {

void sortPaths(benchmark::State& state) {
    std::vector<float> keys;
    for (std::int64_t i = 1; i <= state.range(0); ++i)
        keys.push_back(static_cast<float>(i * 5 % penCount));
    std::vector<std::size_t> order;
    for (auto _ : state)
        order = SortPaths(keys);
    if (!std::is_sorted(order.begin(), order.end(),
                        [&](auto a, auto b) { return keys[a] < keys[b]; }))
        state.SkipWithError("the paths were not sorted");
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(sortPaths)->Name("sorting paths")->Arg(3000)->Arg(30000);

} // namespace
} // namespace torvik
