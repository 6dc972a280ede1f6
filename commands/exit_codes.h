// SPDX-License-Identifier: MIT
// What the command line programs tell the shell.
#pragma once

namespace torvik {

enum class ExitCode {
    done = 0,
    usage = 1,
    file = 2,     // a file cannot be read or written
    digest = 3,   // the answers do not belong to this drawing
    job = 4,      // the job cannot be written as it stands
    findings = 5, // a program holds what is wrong or dangerous
};

} // namespace torvik
