// SPDX-License-Identifier: MIT
// A run over several drawings, as the command line programs make it: a bad drawing is named in one
// line and does not stop the rest, and the first failure gives the exit code.
#pragma once

#include "base/errors.h"
#include "base/files.h"
#include "commands/exit_codes.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace torvik {

// Thrown where a drawing cannot be worked on: why, and what the shell is told.
struct Failure {
    ExitCode code;
    std::string message;
};

// Calls work(i) for each drawing and say(message) for each that fails. What else was raised is
// taken for a file that cannot be read or written.
template <typename Work, typename Say>
int runEach(const std::vector<std::filesystem::path>& drawings, Work work, Say say) {
    ExitCode first = ExitCode::done;
    for (std::size_t i = 0; i < drawings.size(); ++i) {
        ExitCode code = ExitCode::done;
        try {
            namingFile(utf8FromPath(drawings[i]), [&] { work(i); });
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
