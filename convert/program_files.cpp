// SPDX-License-Identifier: MIT
#include "convert/program_files.h"

#include "base/files.h"
#include "base/whole_file.h"
#include "commands/overwriting.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"

namespace torvik {

bool writeProgramFiles(Job& job, const ToolList& tools, const Dialect& dialect, std::int16_t number,
                       const std::filesystem::path& program, bool overwrite, Logger& logger) {
    requireFree(program, overwrite);
    WholeFile pendingProgram(program);
    const bool whole = writeProgram(job, tools, dialect, number, pendingProgram, logger);
    pendingProgram.close();
    if (!whole)
        return false;
    if (!dialect.needsNumber()) {
        pendingProgram.commit();
        return true;
    }
    requireFree(sideTextPath(program), overwrite);
    WholeFile pendingText(sideTextPath(program));
    writeSideText(job, tools, utf8FromPath(program.filename()), pendingText, logger);
    pendingText.commit(WholeFile::WayBack::kept);
    try {
        pendingProgram.commit();
    } catch (const FileError&) {
        pendingText.withdraw();
        throw;
    }
    return true;
}

} // namespace torvik
