// SPDX-License-Identifier: MIT
// Writing a program in ten depth passes for each target, opening lines and header included. Counts
// the program's bytes.
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

class CountingSink final : public ByteSink {
public:
    void write(std::string_view bytes) override { m_count += bytes.size(); }
    std::size_t count() const { return m_count; }

private:
    std::size_t m_count = 0;
};

void writePasses(benchmark::State& state, const Dialect& dialect,
                 std::string (*drawing)(long elements)) {
    Logger logger;
    Job job = jobInTenPasses(drawing(state.range(0)), logger);
    const ToolList tools{{{1, "Slot drill", 6}}, 1, {}, 0};
    CountingSink sink;
    bool whole = true;
    for (auto _ : state)
        whole = writeProgram(job, tools, dialect, 1, sink, logger) && whole;
    // A line of a program takes more than ten bytes.
    const auto bytes = static_cast<std::int64_t>(sink.count());
    if (!whole || bytes < state.iterations() * state.range(0) * 10 * 10)
        state.SkipWithError("the program was not written in ten passes");
    state.SetBytesProcessed(bytes);
    state.SetItemsProcessed(state.iterations() * state.range(0) * 10);
}

[[maybe_unused]] const bool registered = [] {
    for (const Dialect& dialect : dialects()) {
        const std::string name = " for " + std::string(dialect.name);
        const auto add = [&](const char* what, std::string (*drawing)(long)) {
            benchmark::RegisterBenchmark(
                (what + name).c_str(),
                [&dialect, drawing](auto& state) { writePasses(state, dialect, drawing); })
                ->Arg(3000)
                ->Arg(30000);
        };
        add("writing lines in ten passes", lineDrawing);
        add("writing arcs in ten passes", arcDrawing);
    }
    return true;
}();

} // namespace
} // namespace torvik
