// SPDX-License-Identifier: MIT
#include "convert/converter.h"

#include "answers/import_drawing.h"
#include "answers/program_folder.h"
#include "answers/saved_text.h"
#include "base/errors.h"
#include "base/files.h"
#include "base/logger.h"
#include "base/text.h"
#include "commands/drawing_run.h"
#include "commands/program_run.h"
#include "commands/waiting.h"
#include "convert/options.h"
#include "convert/program_files.h"
#include "convert/show.h"
#include "convert/warnings.h"
#include "gcode/output_file.h"
#include "gcode/program_size.h"
#include "gcode/tool_check.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "tools/settings_file_reader.h"
#include "tools/tool_store.h"

#include <memory>
#include <ostream>
#include <utility>
#include <vector>

namespace torvik {
namespace {

constexpr std::string_view programName = "torvik-convert";

class Converter {
public:
    Converter(const ConvertOptions& options, std::ostream& out, std::ostream& err)
        : m_options(options), m_out(out), m_err(err),
          m_logger(logFile(programName), [this](const ErrorReport& report) {
              m_reported.emplace_back(report.cause);
              m_isUnreadable = report.isUnreadable;
          }) {}

    int run() {
        return runEach(
            m_options.drawings, [this](std::size_t i) { work(i); },
            [this](std::string_view message) { say(message); });
    }

private:
    void work(std::size_t i) {
        m_reported.clear();
        if (m_options.action == ConvertOptions::Action::show)
            show(m_options.drawings[i]);
        else
            convert(i);
        sayWarnings(utf8FromPath(m_options.drawings[i]) + ": ");
    }

    void say(std::string_view message) { m_err << programName << ": " << message << '\n'; }

    WaitingNotice noticeFor(const std::vector<std::filesystem::path>& files) {
        return {files, [this](std::string_view message) { say(message); }};
    }

    // What was reported on the way although the work went on.
    void sayWarnings(const std::string& about) {
        for (const std::string& cause : std::exchange(m_reported, {}))
            say("warning: " + about + cause);
    }

    std::string takeLastReport() {
        const auto reported = std::exchange(m_reported, {});
        return reported.empty() ? std::string("the reason is in the log") : reported.back();
    }

    // Why a drawing was not read, where that was reported.
    Failure readingFailure(const std::filesystem::path& drawing) {
        const std::string name = utf8FromPath(drawing);
        const std::string cause = takeLastReport();
        return {m_isUnreadable ? ExitCode::file : ExitCode::job,
                cause.starts_with(name) ? cause : name + ": " + cause};
    }

    void show(const std::filesystem::path& drawing) {
        requireReadable(drawing, maxDrawingBytes);
        Job job;
        const WaitingNotice notice = noticeFor({drawing});
        if (!readDrawing(job, drawing, m_logger))
            throw readingFailure(drawing);
        m_out << describeDrawing(job);
    }

    void convert(std::size_t i) {
        const auto& drawing = m_options.drawings[i];
        requireReadable(drawing, maxDrawingBytes);
        loadTools();
        Job job;
        import(job, drawing);
        if (trimBlanks(job.answers.gstrHeader[headerDate]).empty())
            job.answers.gstrHeader[headerDate] = m_options.date;
        requireTools(job, drawing);
        const ProgramSize size = requireWritable(job, drawing);

        const auto output = m_options.outputPath(i);
        refuseOverwritingInput(output, job);
        if (m_options.dialect->needsNumber())
            refuseOverwritingInput(sideTextPath(output), job);
        if (m_options.outputFolder)
            makeFolder(*m_options.outputFolder);
        if (!writeProgramFiles(job, m_tools, *m_options.dialect, m_options.outputNumber(i), output,
                               overwriting(), m_logger))
            throw Failure{ExitCode::job, utf8FromPath(drawing) + ": " + takeLastReport()};
        for (std::string& warning : commentWarnings(job, m_tools, *m_options.dialect))
            m_reported.push_back(std::move(warning));
        if (m_options.quiet)
            return;
        if (size.isLong())
            m_reported.push_back(longText(size));
        m_out << utf8FromPath(drawing) << " -> " << utf8FromPath(output) << std::endl;
    }

    // A file that no control can take is not begun.
    ProgramSize requireWritable(const Job& job, const std::filesystem::path& drawing) const {
        const ProgramSize size = programSize(job, m_tools, *m_options.dialect);
        if (size.isTooLong())
            throw Failure{ExitCode::job, utf8FromPath(drawing) + ": " + tooLongText(job, size)};
        return size;
    }

    Overwriting overwriting() const {
        if (m_options.force)
            return Overwriting::everything;
        return m_options.output ? Overwriting::programNamed : Overwriting::nothing;
    }

    // The tool library is read once, with the first drawing that needs it.
    void loadTools() {
        if (m_toolsLoaded)
            return;
        const WaitingNotice notice = noticeFor({m_options.tools.value_or(userSettingsFile())});
        const std::unique_ptr<RegistryReader> registry =
            m_options.tools ? std::make_unique<SettingsFileReader>(
                                  *m_options.tools, SettingsFileReader::IfUnreadable::raises)
                            : openRegistryReader();
        const auto value = [&](const char* name) {
            return registry->strRegistryValueGet(name, "");
        };
        m_logger.setSwitches(LogSwitches::fromTexts(value("LogErrors"), value("LogTrace"),
                                                    value("LogInfo"), value("LogExclude")));
        ToolDataLoad(m_tools, *registry, m_logger);
        m_toolsLoaded = true;
        sayWarnings((m_options.tools ? utf8FromPath(*m_options.tools) : registryPlace()) + ": ");
    }

    void import(Job& job, const std::filesystem::path& drawing) {
        if (m_options.answers)
            requireReadable(*m_options.answers, maxSavedBytes);
        const ImportResult result = [&] {
            const WaitingNotice notice =
                noticeFor({drawing, m_options.answers.value_or(std::filesystem::path())});
            return m_options.answers
                       ? importDrawingWithAnswers(job, drawing, m_tools, *m_options.answers,
                                                  m_logger)
                       : importDrawing(job, drawing, m_tools, savedSettingsFolder(), m_logger);
        }();
        if (!result.imported)
            throw readingFailure(drawing);
        const std::string answers =
            m_options.answers ? utf8FromPath(*m_options.answers) : job.answers.gstrSavedFile;
        switch (result.saved.outcome) {
        case SavedOutcome::taken:
            break;
        case SavedOutcome::none:
            throw Failure{ExitCode::job, utf8FromPath(drawing) +
                                             ": there are no saved answers for this drawing (" +
                                             answers + ")"};
        case SavedOutcome::digestDiffers:
            throw Failure{ExitCode::digest,
                          utf8FromPath(drawing) + ": the answers in " + answers +
                              " belong to another drawing or to an earlier state of this one"};
        case SavedOutcome::damaged:
            throw Failure{ExitCode::file, result.saved.damage};
        }
    }

    void requireTools(const Job& job, const std::filesystem::path& drawing) const {
        if (const auto group = groupWithoutTool(job, m_tools))
            throw Failure{ExitCode::job,
                          utf8FromPath(drawing) + ": " +
                              groupText(job.answers.gudtPens[group->pen], group->radius) +
                              " have no tool of the tool library"};
    }

    // A program, and the text beside it, may take the place of nothing that this run reads.
    void refuseOverwritingInput(const std::filesystem::path& output, const Job& job) const {
        auto inputs = m_options.drawings;
        inputs.push_back(pathFromUtf8(job.answers.gstrSavedFile));
        inputs.push_back(m_options.tools.value_or(userSettingsFile()));
        for (const auto& input : inputs) {
            std::error_code error;
            if (std::filesystem::equivalent(output, input, error))
                throw Failure{ExitCode::file, utf8FromPath(output) +
                                                  ": the program would replace " +
                                                  utf8FromPath(input) + ", which it is made from"};
        }
    }

    const ConvertOptions& m_options;
    std::ostream& m_out;
    std::ostream& m_err;
    std::vector<std::string> m_reported;
    bool m_isUnreadable = false; // the last of them
    Logger m_logger;
    ToolList m_tools;
    bool m_toolsLoaded = false;
};

} // namespace

int runConverter(std::vector<std::string> arguments, std::ostream& out, std::ostream& err) {
    std::string usageError;
    const auto options = parseOptions(std::move(arguments), usageError);
    return runProgram({programName, out, err}, options, usageError, helpText,
                      [&] { return Converter(*options, out, err).run(); });
}

} // namespace torvik
