// SPDX-License-Identifier: MIT
#include "convert/program_files.h"

#include "base/whole_file.h"
#include "commands/overwriting.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"

namespace torvik {

bool writeProgramFiles(const Job& job, const ToolList& tools, const Dialect& dialect,
                       std::int16_t number, const std::filesystem::path& program,
                       Overwriting overwriting, Logger& logger) {
    requireFree(program, overwriting != Overwriting::nothing);
    if (dialect.needsNumber()) {
        // The text of a program goes with it. Without its program it may be anything.
        std::error_code unknown;
        const bool isOfProgram =
            overwriting == Overwriting::programNamed && std::filesystem::exists(program, unknown);
        requireFree(sideTextPath(program), overwriting == Overwriting::everything || isOfProgram);
    }
    WholeFile pending(program);
    const bool whole = writeProgram(job, tools, dialect, number, pending, logger);
    pending.close();
    return whole && storeProgram(job, tools, dialect, program, pending, logger);
}

} // namespace torvik
