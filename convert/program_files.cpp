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

// Passes the bytes on and keeps them.
class KeepingSink final : public ByteSink {
public:
    explicit KeepingSink(ByteSink& sink) : m_sink(sink) {}

    void write(std::string_view bytes) override {
        m_sink.write(bytes);
        m_kept.write(bytes);
    }
    std::string_view bytes() const { return m_kept.bytes(); }

private:
    ByteSink& m_sink;
    StringSink m_kept;
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
                       Overwriting overwriting, Logger& logger, const ProgramCheck& check) {
    requireFree(program, overwriting != Overwriting::nothing);
    if (dialect.needsNumber()) {
        // The text of a program goes with it. Without its program it may be anything.
        std::error_code unknown;
        const bool isOfProgram =
            overwriting == Overwriting::programNamed && std::filesystem::exists(program, unknown);
        requireFree(sideTextPath(program), overwriting == Overwriting::everything || isOfProgram);
    }
    WholeFile pending(program);
    KeepingSink kept(pending);
    ByteSink& sink = check ? static_cast<ByteSink&>(kept) : pending;
    const bool whole = writeProgram(job, tools, dialect, number, sink, logger);
    pending.close();
    if (whole && check)
        check(kept.bytes(), sideTextOf(job, tools, dialect, program));
    return whole && storeProgram(job, tools, dialect, program, pending, logger);
}

} // namespace torvik
