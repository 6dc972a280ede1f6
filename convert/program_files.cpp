// SPDX-License-Identifier: MIT
#include "convert/program_files.h"

#include "base/files.h"
#include "base/logger.h"
#include "base/whole_file.h"
#include "commands/overwriting.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"

namespace torvik {
namespace {

// Passes the bytes on to both.
class BothSinks final : public ByteSink {
public:
    BothSinks(ByteSink& first, ByteSink& second) : m_first(first), m_second(second) {}

    void write(std::string_view bytes) override {
        m_first.write(bytes);
        m_second.write(bytes);
    }

private:
    ByteSink& m_first;
    ByteSink& m_second;
};

std::string sideTextOf(const Job& job, const ToolList& tools, const Dialect& dialect,
                       const std::filesystem::path& program) {
    StringSink text;
    Logger muted; // what is wrong is told where the text is written
    if (dialect.needsNumber())
        writeSideText(job, tools, utf8FromPath(program.filename()), text, muted);
    return text.bytes();
}

} // namespace

bool writeProgramFiles(const Job& job, const ToolList& tools, const Dialect& dialect,
                       std::int16_t number, const std::filesystem::path& program,
                       Overwriting overwriting, Logger& logger, ProgramCheck* check) {
    requireFree(program, overwriting != Overwriting::nothing);
    if (dialect.needsNumber()) {
        // The text of a program goes with it. Without its program it may be anything.
        std::error_code unknown;
        const bool isOfProgram =
            overwriting == Overwriting::programNamed && std::filesystem::exists(program, unknown);
        requireFree(sideTextPath(program), overwriting == Overwriting::everything || isOfProgram);
    }
    WholeFile pending(program);
    const auto writeInto = [&](ByteSink& sink) {
        return writeProgram(job, tools, dialect, number, sink, logger);
    };
    bool whole = false;
    if (check == nullptr) {
        whole = writeInto(pending);
    } else {
        BothSinks both(pending, *check);
        whole = writeInto(both);
    }
    pending.close();
    if (whole && check != nullptr)
        check->judge(sideTextOf(job, tools, dialect, program));
    return whole && storeProgram(job, tools, dialect, program, pending, logger);
}

} // namespace torvik
