// SPDX-License-Identifier: MIT
// A job's program before it is written: made in memory, read as the machine reads it, and checked.
// Lengths are mm. A program above mostTriedLines is not tried: each line takes some 300 bytes.
#pragma once

#include "check/findings.h"
#include "check/move.h"
#include "check/pace.h"
#include "check/program_header.h"
#include "check/summary.h"
#include "job/machined_groups.h"

#include <cstdint>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace torvik {

struct Dialect;
struct ToolList;
class Logger;

inline constexpr std::int64_t mostTriedLines = 2'000'000;

struct TriedGroup {
    MachinedGroup group;
    std::string name;    // "Black – cut", "Red – 6.0 mm holes"
    std::string tool;    // "T1 6.0 mm Slot drill", empty without one
    double depth;        // below the surface
    std::int64_t passes; // of a cut pen; of a drilled one the pecks of each hole
    std::int64_t holes;  // 0 for a cut pen
    std::uint32_t firstLine;
    double minutes;
};

struct TriedProgram {
    enum class State : std::uint8_t {
        tried,
        tooLong,   // only what can be seen of the job alone is found
        failed,    // the same: an error, which the logger has reported, ended the writing
        cancelled, // by the stop token
    };

    State state = State::cancelled;
    std::int64_t lines = 0;
    std::string program;  // its bytes
    std::string sideText; // of the text beside it, where the control has one
    check::Billet billet;
    // Of the text, against the job, and what can be seen of the job alone; each fault once.
    check::Findings findings;
    check::Moves moves;
    check::Summary summary;
    std::vector<TriedGroup> groups; // in machining order
    check::Pace pace;               // of the control's machine
    double minutes = 0;             // on it, with a stop at the end of every move

    bool isTried() const { return state == State::tried; }
};

// `number` is the program number of the targets that have one. Raises nothing of its own.
TriedProgram tryProgram(const Job& job, const ToolList& tools, const Dialect& dialect,
                        std::int16_t number, Logger& logger, const std::stop_token& stop = {});

} // namespace torvik
