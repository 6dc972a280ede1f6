// SPDX-License-Identifier: MIT
// A console program from its command line to its exit code: wrong usage, --help and --version are
// the same in all of them.
#pragma once

#include "commands/program_guide.h"

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

namespace torvik {

struct Console {
    std::string_view programName;
    std::ostream& out;
    std::ostream& err;
};

enum class Told : std::uint8_t { wrongly, help, version, work };

// Does what the program was told; what it says last must reach the standard output.
int runAsTold(const Console& console, Told told, std::string_view usageError,
              const std::function<ProgramGuide()>& guide, const std::function<int()>& work);

// The same for options that have an Action; there are none where the usage was wrong.
template <typename Options>
int runProgram(const Console& console, const std::optional<Options>& options,
               std::string_view usageError, const std::function<ProgramGuide()>& guide,
               const std::function<int()>& work) {
    Told told = options ? Told::work : Told::wrongly;
    if (options && options->action == Options::Action::help)
        told = Told::help;
    if (options && options->action == Options::Action::version)
        told = Told::version;
    return runAsTold(console, told, usageError, guide, work);
}

} // namespace torvik
