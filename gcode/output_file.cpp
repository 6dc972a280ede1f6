// SPDX-License-Identifier: MIT
#include "gcode/output_file.h"

#include "base/error_trap.h"
#include "base/files.h"
#include "base/picture.h"
#include "base/text.h"
#include "base/whole_file.h"
#include "gcode/dialects.h"
#include "gcode/header.h"
#include "gcode/program_output.h"
#include "gcode/program_writer.h"
#include "job/job.h"

#include <optional>

namespace torvik {
namespace {

void writeOpening(std::span<const Statement> statements, std::int16_t number,
                  ProgramOutput& output) {
    StatementValues values;
    values.programNumber = number;
    for (const Statement& statement : statements) {
        std::string text;
        expand(text, statement.text, values);
        if (statement.numbered)
            output.CommandLine(text);
        else
            output.WriteLine(text);
    }
}

std::string absolutePlotFile(const Job& job) {
    std::error_code error;
    const auto path = std::filesystem::absolute(pathFromUtf8(job.drawing.gstrPlotFile), error);
    return error ? job.drawing.gstrPlotFile : utf8FromPath(path);
}

// Passes bytes on and tells the progress of it.
class WatchedSink final : public ByteSink {
public:
    WatchedSink(ByteSink& sink, const WriteProgress& progress)
        : m_sink(sink), m_progress(progress) {}

    void write(std::string_view bytes) override {
        m_sink.write(bytes);
        m_lines += lineEndsIn(bytes);
        m_cancelled = m_progress && !m_progress(m_lines);
        if (m_cancelled)
            throw Cancelled();
    }
    bool isCancelled() const { return m_cancelled; }

private:
    ByteSink& m_sink;
    const WriteProgress& m_progress;
    std::int64_t m_lines = 0;
    bool m_cancelled = false;
};

} // namespace

void writeTop(const Job& job, const ToolList& tools, const Dialect& dialect, std::int16_t number,
              ProgramOutput& output, Logger& logger) {
    writeOpening(dialect.opening, number, output);
    if (!dialect.commentOpener.empty())
        WriteHeader(job, tools, dialect.commentOpener, dialect.commentCloser, output, logger);
    writeOpening(dialect.openingAfterHeader, number, output);
}

bool writeProgram(const Job& job, const ToolList& tools, const Dialect& dialect,
                  std::int16_t number, ByteSink& sink, Logger& logger) {
    ProgramOutput output(sink);
    writeTop(job, tools, dialect, number, output, logger);
    const bool whole = WriteGcodes(job, tools, dialect.code, output, logger);
    output.flush();
    return whole && !output.failed();
}

bool writeSideText(const Job& job, const ToolList& tools, std::string_view fileName, ByteSink& sink,
                   Logger& logger) {
    ProgramOutput output(sink);
    output.WriteLine("Origin - " + latin1Line(absolutePlotFile(job)));
    output.WriteLine("File - " + latin1Line(fileName));
    WriteHeader(job, tools, "", "", output, logger);
    output.flush();
    return !output.failed();
}

std::filesystem::path sideTextPath(const std::filesystem::path& program) {
    auto path = program;
    return path += ".txt";
}

std::vector<std::filesystem::path> filesOf(const Dialect& dialect,
                                           const std::filesystem::path& program) {
    if (!dialect.needsNumber())
        return {program};
    return {program, sideTextPath(program)};
}

bool storeProgram(const Job& job, const ToolList& tools, const Dialect& dialect,
                  const std::filesystem::path& file, WholeFile& program, Logger& logger) {
    if (!dialect.needsNumber()) {
        program.commit();
        return true;
    }
    program.close();
    WholeFile sideText(sideTextPath(file));
    if (!writeSideText(job, tools, utf8FromPath(file.filename()), sideText, logger))
        return false;
    commitBoth(sideText, program);
    return true;
}

WriteOutcome WriteFile(const Job& job, const ToolList& tools, std::int16_t target,
                       std::int16_t number, const std::filesystem::path& file, Logger& logger,
                       const WriteProgress& progress) {
    constexpr Location here{"WriteFile", "modHpgl"};
    const Dialect& dialect = dialectFor(target);
    std::optional<WholeFile> program;
    if (!withQuietErrorTrap(logger, here, [&] { program.emplace(file); }))
        return WriteOutcome::notOpened;
    WatchedSink watched(*program, progress);
    bool stored = false;
    withErrorTrap(logger, here, [&] {
        stored = writeProgram(job, tools, dialect, number, watched, logger) &&
                 storeProgram(job, tools, dialect, file, *program, logger);
    });
    if (watched.isCancelled())
        return WriteOutcome::cancelled;
    return stored ? WriteOutcome::written : WriteOutcome::failed;
}

std::string proposedFileName(const Dialect& dialect, std::string_view plotFile,
                             std::int16_t number) {
    if (dialect.needsNumber())
        return std::string(dialect.diskettePrefix) + formatInteger(number);
    return replaceLastThree(fileNameOf(plotFile), dialect.extension);
}

} // namespace torvik
