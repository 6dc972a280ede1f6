// SPDX-License-Identifier: MIT
// Reading a drawing: from bytes in memory, and from its file. Counts the drawing's bytes.
#include "base/logger.h"
#include "bench/drawings.h"
#include "job/hpgl_reader.h"
#include "job/job.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>

namespace torvik {
namespace {

void count(benchmark::State& state, const std::string& drawing, const Job& job) {
    if (job.drawing.gintPathCount != state.range(0))
        state.SkipWithError("the drawing was not read");
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(drawing.size()));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void readFromMemory(benchmark::State& state, const std::string& drawing) {
    Logger logger;
    Job job;
    for (auto _ : state) {
        job = Job();
        readInstructions(job.drawing, drawing, "drawing", logger);
    }
    count(state, drawing, job);
}

void readLines(benchmark::State& state) {
    readFromMemory(state, lineDrawing(state.range(0)));
}

void readArcs(benchmark::State& state) {
    readFromMemory(state, arcDrawing(state.range(0)));
}

void readLinesFromFile(benchmark::State& state) {
    const auto file = std::filesystem::temp_directory_path() / "torvik-reader-bench.plt";
    const std::string drawing = lineDrawing(state.range(0));
    std::ofstream(file, std::ios::binary) << drawing;
    Logger logger;
    Job job;
    for (auto _ : state)
        blnGetCommands(job, file, logger);
    std::filesystem::remove(file);
    count(state, drawing, job);
}

BENCHMARK(readLines)->Name("reading lines")->Arg(3000)->Arg(30000);
BENCHMARK(readLinesFromFile)->Name("reading a file of lines")->Arg(3000)->Arg(30000);
BENCHMARK(readArcs)->Name("reading arcs")->Arg(3000)->Arg(30000);

} // namespace
} // namespace torvik
