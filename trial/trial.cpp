// SPDX-License-Identifier: MIT
#include "trial/trial.h"

#include "base/byte_sink.h"
#include "base/error_trap.h"
#include "base/stopping.h"
#include "check/plan/plan.h"
#include "check/sense/sense.h"
#include "check/targets.h"
#include "check/time/pace_settings.h"
#include "check/time/program_time.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "gcode/program_size.h"
#include "trial/tried_groups.h"

#include <cmath>

namespace torvik {
namespace {

// Keeps the bytes until it is stopped.
class StoppableSink final : public ByteSink {
public:
    StoppableSink(std::string& bytes, const std::stop_token& stop) : m_bytes(bytes), m_stop(stop) {}

    void write(std::string_view bytes) override {
        endIfStopped(m_stop);
        m_bytes += bytes;
    }

private:
    std::string& m_bytes;
    const std::stop_token& m_stop;
};

bool writeInto(TriedProgram& tried, const Job& job, const ToolList& tools, const Dialect& dialect,
               std::int16_t number, Logger& logger, const std::stop_token& stop) {
    StoppableSink program(tried.program, stop);
    StoppableSink sideText(tried.sideText, stop);
    return writeProgram(job, tools, dialect, number, program, logger) &&
           (!dialect.needsNumber() ||
            writeSideText(job, tools, proposedFileName(dialect, {}, number), sideText, logger));
}

// Without a table of its own a control's programs are not read.
void readAndCheck(TriedProgram& tried, const Job& job, const ToolList& tools,
                  const Dialect& dialect, const std::stop_token& stop) {
    const check::Target* const target = check::findTarget(dialect.optionName);
    if (target == nullptr)
        return;
    check::Report report =
        check::checkProgramOfJob(tried.program, tried.sideText, job, tools, target, stop);
    tried.findings = std::move(report.findings);
    tried.moves = std::move(report.moves);
    tried.summary = std::move(report.summary);
}

} // namespace

TriedProgram tryProgram(const Job& job, const ToolList& tools, const Dialect& dialect,
                        std::int16_t number, Logger& logger, const std::stop_token& stop) {
    TriedProgram tried;
    bool isWhole = false;
    withErrorTrap(logger, {"tryProgram", "trial"}, [&] {
        const auto& header = job.answers.gstrHeader;
        tried.billet =
            check::billetOf(header[headerBilletX], header[headerBilletY], header[headerBilletZ]);
        const ProgramSize size = programSize(job, tools, dialect);
        tried.lines = size.lines;
        isWhole = size.lines <= mostTriedLines &&
                  writeInto(tried, job, tools, dialect, number, logger, stop);
        if (isWhole)
            readAndCheck(tried, job, tools, dialect, stop);
        endIfStopped(stop);
        check::addSense(job, tools, tried.findings);
        if (const check::Target* const target = check::findTarget(dialect.optionName))
            tried.pace = check::paceOf(*target);
        tried.groups =
            triedGroups(job, tools, size, tried.moves, check::moveTimes(tried.moves, tried.pace));
        tried.minutes = check::programTime(tried.moves, tried.pace).minutes;
    });
    using State = TriedProgram::State;
    if (stop.stop_requested())
        tried.state = State::cancelled;
    else if (tried.lines > mostTriedLines)
        tried.state = State::tooLong;
    else
        tried.state = isWhole ? State::tried : State::failed;
    return tried;
}

} // namespace torvik
