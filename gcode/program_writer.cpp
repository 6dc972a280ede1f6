// SPDX-License-Identifier: MIT
#include "gcode/program_writer.h"

#include "base/error_trap.h"
#include "gcode/body_walk.h"
#include "gcode/cut_words.h"
#include "gcode/program_output.h"
#include "gcode/statement_text.h"

namespace torvik {
namespace {

// The statements as blocks of the output.
class WrittenStatements {
public:
    using Words = CutWords;

    WrittenStatements(const Dialect& dialect, ProgramOutput& output)
        : m_dialect(dialect), m_output(output) {}

    void begin(const MachinedGroup& /*group*/) {}
    void step() {}

    void put(std::string_view statement, const StatementValues& values) {
        if (statement.empty())
            return;
        m_expanded.clear();
        expand(m_expanded, statement, values);
        m_output.CommandLine(m_expanded);
    }

    void putLine(std::string_view text) { m_output.WriteLine(text); }

    void rapidToHeight(float z) { m_output.CommandLine(StatementText("G0").height(" Z", z)); }

    void feedToHeight(float z, float feed) {
        m_output.CommandLine(StatementText("G1").height(" Z", z).feed(m_dialect, feed));
    }

    void rapidTo(float x, float y) {
        m_output.CommandLine(StatementText("G0").position(" X", x).position(" Y", y));
    }

    void cut(CutWords& words, const CutRun& run) {
        m_output.writeBlocks(words.lines(), run.first, run.end);
    }

private:
    const Dialect& m_dialect;
    ProgramOutput& m_output;
    std::string m_expanded;
};

} // namespace

bool WriteGcodes(const Job& job, const ToolList& tools, std::int16_t target, ProgramOutput& output,
                 Logger& logger) {
    return withErrorTrap(logger, {"WriteGcodes", "modHpgl"}, [&] {
        const Dialect& dialect = dialectFor(target);
        WrittenStatements statements(dialect, output);
        BodyWalk(job, tools, dialect, statements).walk();
    });
}

} // namespace torvik
