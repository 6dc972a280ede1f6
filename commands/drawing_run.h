// SPDX-License-Identifier: MIT
// A run over several drawings, as the command line programs make it: a bad drawing is named in one
// line and does not stop the rest, and the first failure gives the exit code.
#pragma once

#include "base/errors.h"
#include "commands/exit_codes.h"

#include <cstddef>
#include <string>

namespace torvik {

// Thrown where a drawing cannot be worked on: why, and what the shell is told.
struct Failure {
    ExitCode code;
    std::string message;
};

// Calls work(i) for each drawing from 0 and say(message) for each that fails. What else was raised
// is taken for a file that cannot be read or written.
template <typename Work, typename Say>
int runEach(std::size_t drawings, Work work, Say say) {
    ExitCode first = ExitCode::done;
    for (std::size_t i = 0; i < drawings; ++i) {
        ExitCode code = ExitCode::done;
        try {
            work(i);
        } catch (const Failure& failure) {
            say(failure.message);
            code = failure.code;
        } catch (const RunTimeError& error) {
            say(error.what());
            code = ExitCode::file;
        }
        if (first == ExitCode::done)
            first = code;
    }
    return static_cast<int>(first);
}

} // namespace torvik
