// SPDX-License-Identifier: MIT
// The check of one written program from its text alone.
#pragma once

#include "base/byte_sink.h"
#include "check/finders.h"
#include "check/findings.h"
#include "check/move.h"
#include "check/program_reader.h"
#include "check/summary.h"

#include <functional>
#include <stop_token>
#include <string_view>

namespace torvik::check {

struct Report {
    const Target* target = nullptr; // nullptr where the text is a program of none
    Findings findings;
    Summary summary;
    Moves moves; // what the machine does
};

// Lays a program beside a job.
using FindPlan = std::function<void(const Walked& walked, Findings& findings)>;

// The check of a program that comes piece by piece, while it is written. Nothing of its text is
// kept. `stop` ends it with Cancelled; it raises nothing of its own for any bytes.
class RunningCheck final : public ByteSink {
public:
    // About as many lines as `lines` will come.
    RunningCheck(const Target& target, std::size_t lines, const std::stop_token& stop = {});

    void write(std::string_view bytes) override { m_reader.take(bytes); }
    // When all has come. `sideText` is the text beside a diskette program, empty where there is
    // none. Where there is a plan, it takes the place of what only guesses at passes and holes.
    Report finish(std::string_view sideText, const FindPlan& findPlan = {});

private:
    Report m_report;
    std::stop_token m_stop;
    ProgramReader m_reader;
};

// The same for a whole text. Without a target the text's own beginning tells it.
Report checkProgram(std::string_view program, std::string_view sideText = {},
                    const Target* target = nullptr, const FindPlan& findPlan = {},
                    const std::stop_token& stop = {});

} // namespace torvik::check
