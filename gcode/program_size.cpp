// SPDX-License-Identifier: MIT
#include "gcode/program_size.h"

#include "base/logger.h"
#include "gcode/body_walk.h"
#include "gcode/cut_words.h"
#include "gcode/output_file.h"
#include "gcode/program_output.h"

#include <algorithm>
#include <vector>

namespace torvik {
namespace {

// What usual statements take, with their block number and line end.
constexpr std::int64_t numberBytes = 8;
constexpr std::int64_t heightBytes = 9 + numberBytes;
constexpr std::int64_t feedBytes = 14 + numberBytes;
constexpr std::int64_t rapidBytes = 19 + numberBytes;
constexpr std::int64_t lineBytes = 24 + numberBytes;
constexpr std::int64_t arcBytes = 41 + numberBytes;

// A pen's paths without their words.
class CountedWords {
public:
    struct Run : CutRun {
        std::int64_t bytes = 0;
    };

    CountedWords(const Drawing& drawing, const PathSubscripts& paths, const Dialect& /*dialect*/,
                 float /*feed*/) {
        visitCuts(drawing, paths, [&](std::int16_t path, bool connected) {
            addCut(m_runs, path, connected).bytes +=
                isArc(drawing.gudtPaths[path]) ? arcBytes : lineBytes;
        });
    }
    void changeFeed(const Dialect& /*dialect*/, float /*feed*/) {}
    const std::vector<Run>& runs() const { return m_runs; }

private:
    std::vector<Run> m_runs;
};

class CountedStatements {
public:
    using Words = CountedWords;

    explicit CountedStatements(ProgramSize& size) : m_size(size) {}

    void begin(const MachinedGroup& group) {
        end();
        m_group = group;
        m_linesBefore = m_size.lines;
        m_size.groups.push_back({group, m_size.lines + 1, 0});
    }
    // The group that is counted ends.
    void end() {
        if (!m_group || m_size.lines - m_linesBefore <= m_mostLines)
            return;
        m_mostLines = m_size.lines - m_linesBefore;
        m_size.longest = m_group;
    }
    void step() {
        ++m_size.steps;
        ++m_size.groups.back().steps;
    }
    void put(std::string_view statement, const StatementValues& /*values*/) {
        if (!statement.empty())
            count(static_cast<std::int64_t>(statement.size()) + numberBytes);
    }
    void putLine(std::string_view text) { count(static_cast<std::int64_t>(text.size()) + 2); }
    void rapidToHeight(float /*z*/) { count(heightBytes); }
    void feedToHeight(float /*z*/, float /*feed*/) { count(feedBytes); }
    void rapidTo(float /*x*/, float /*y*/) { count(rapidBytes); }
    void cut(const CountedWords& /*words*/, const CountedWords::Run& run) {
        count(run.bytes, run.end - run.first);
    }

private:
    void count(std::int64_t bytes, std::int64_t lines = 1) {
        m_size.bytes += bytes;
        m_size.lines = std::min(m_size.lines + lines, mostLines + 1);
        if (m_size.lines > mostLines)
            throw Overflow("the program has more lines than any may have");
    }

    ProgramSize& m_size;
    std::optional<MachinedGroup> m_group;
    std::int64_t m_linesBefore = 0;
    std::int64_t m_mostLines = 0;
};

class CountingSink final : public ByteSink {
public:
    explicit CountingSink(ProgramSize& size) : m_size(size) {}

    void write(std::string_view bytes) override {
        m_size.lines += lineEndsIn(bytes);
        m_size.bytes += static_cast<std::int64_t>(bytes.size());
    }

private:
    ProgramSize& m_size;
};

} // namespace

std::int64_t ProgramSize::megabytes() const {
    constexpr std::int64_t megabyte = 1'000'000;
    return std::max<std::int64_t>((bytes + megabyte / 2) / megabyte, 1);
}

ProgramSize programSize(const Job& job, const ToolList& tools, const Dialect& dialect) {
    ProgramSize size;
    CountingSink sink(size);
    ProgramOutput top(sink);
    Logger muted; // what is wrong is said when the program is written
    writeTop(job, tools, dialect, 1, top, muted);
    top.flush();
    CountedStatements statements(size);
    try {
        BodyWalk(job, tools, dialect, statements).walk();
    } catch (const RunTimeError&) {
        // Too long, or an error that will end the writing, too.
    }
    statements.end();
    return size;
}

} // namespace torvik
