// SPDX-License-Identifier: MIT
#include "prepare/command/preparer.h"

#include "base/errors.h"
#include "base/files.h"
#include "base/whole_file.h"
#include "commands/drawing_run.h"
#include "commands/overwriting.h"
#include "commands/program_run.h"
#include "commands/waiting.h"
#include "job/hpgl_reader.h"
#include "prepare/command/options.h"
#include "prepare/files/drawing_files.h"
#include "prepare/report.h"

#include <ostream>

namespace torvik {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view programName = "torvik-prepare";

class Preparer {
public:
    Preparer(const PrepareCommand& command, std::ostream& out, std::ostream& err)
        : m_command(command), m_out(out), m_err(err) {}

    int run() {
        return runEach(
            m_command.drawings, [this](std::size_t i) { prepare(i); },
            [this](std::string_view message) { say(message); });
    }

private:
    void say(std::string_view message) { m_err << programName << ": " << message << '\n'; }

    void prepare(std::size_t i) {
        const fs::path& drawing = m_command.drawings[i];
        const std::string name = utf8FromPath(drawing);
        requireReadable(drawing, maxDrawingBytes);
        const fs::path output = m_command.outputPath(i);
        requireWritable(output, drawing);
        const std::string bytes = read(drawing);
        const PreparedDrawing prepared = prepareBytes(bytes, name);
        write(output, prepared.text);

        if (!m_command.quiet)
            m_out << name << " -> " << utf8FromPath(output) << '\n';
        if (m_command.report)
            m_out << reportText(name, prepared.report);
        m_out.flush();
        if (const std::string lost = lossLine(prepared.report); !lost.empty())
            say("warning: " + name + ": not carried over: " + lost);
    }

    std::string read(const fs::path& drawing) {
        const WaitingNotice notice({drawing}, [this](std::string_view message) { say(message); });
        return readWholeFile(drawing, maxDrawingBytes);
    }

    PreparedDrawing prepareBytes(const std::string& bytes, const std::string& name) const {
        try {
            return prepareDrawing(readSource(bytes, name, m_command.source), m_command.options);
        } catch (const FileError& error) {
            throw Failure{ExitCode::job, error.what()};
        } catch (const RunTimeError& error) {
            throw Failure{ExitCode::job, name + ": " + error.what()};
        }
    }

    // Refuses what must not or cannot be replaced before any work is done.
    void requireWritable(const fs::path& output, const fs::path& drawing) const {
        requireOtherFile(output, drawing);
        requireFree(output, m_command.force || m_command.output);
    }

    void write(const fs::path& output, const std::string& text) const {
        if (m_command.outputFolder)
            makeFolder(*m_command.outputFolder);
        saveWhole(output, text);
        if (m_command.sync)
            makeDurable(output);
    }

    const PrepareCommand& m_command;
    std::ostream& m_out;
    std::ostream& m_err;
};

} // namespace

int runPreparer(const QStringList& arguments, std::ostream& out, std::ostream& err) {
    QString usageError;
    const auto command = parsePrepareCommand(arguments, usageError);
    return runProgram({programName, out, err}, command, usageError.toStdString(), preparerGuide,
                      [&] { return Preparer(*command, out, err).run(); });
}

} // namespace torvik
