// SPDX-License-Identifier: MIT
#include "commands/program_run.h"

#include <ostream>

namespace torvik {
namespace {

int doAsTold(const Console& console, Told told, std::string_view usageError,
             const std::function<ProgramGuide()>& guide, const std::function<int()>& work) {
    switch (told) {
    case Told::wrongly:
        console.err << console.programName << ": " << usageError << " (see --help)\n";
        return static_cast<int>(ExitCode::usage);
    case Told::help:
        console.out << helpText(guide());
        break;
    case Told::version:
        console.out << console.programName << " " TORVIK_VERSION "\n";
        break;
    case Told::work:
        return work();
    }
    return static_cast<int>(ExitCode::done);
}

} // namespace

int runAsTold(const Console& console, Told told, std::string_view usageError,
              const std::function<ProgramGuide()>& guide, const std::function<int()>& work) {
    const int code = doAsTold(console, told, usageError, guide, work);
    if (console.out.flush())
        return code;
    console.err << console.programName << ": the standard output cannot be written\n";
    return code == 0 ? static_cast<int>(ExitCode::file) : code;
}

} // namespace torvik
