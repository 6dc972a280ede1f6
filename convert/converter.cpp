// SPDX-License-Identifier: MIT
#include "convert/converter.h"

#include "base/files.h"
#include "base/text.h"
#include "base/whole_file.h"
#include "check/finding_lines.h"
#include "check/plan/plan.h"
#include "check/sense/sense.h"
#include "commands/drawing_run.h"
#include "commands/job/job_reader.h"
#include "commands/program_run.h"
#include "commands/target_names.h"
#include "convert/options.h"
#include "convert/program_files.h"
#include "convert/show.h"
#include "convert/warnings.h"
#include "gcode/output_file.h"
#include "gcode/program_size.h"
#include "job/job.h"
#include "tools/settings_file_reader.h"

#include <functional>
#include <memory>
#include <ostream>
#include <utility>
#include <vector>

namespace torvik {
namespace {

constexpr std::string_view programName = "torvik-convert";
constexpr std::int64_t mostCheckedLines = 1'000'000; // a check keeps some 150 bytes a line

// Reads the program as it is written; the rest is for the one who made it.
class CheckOfJob final : public ProgramCheck {
public:
    using Judge = std::function<void(const check::Report& report)>;

    CheckOfJob(const check::Target& target, std::int64_t lines, const Job& job,
               const ToolList& tools, Judge judge)
        : m_check(target, static_cast<std::size_t>(lines)), m_job(job), m_tools(tools),
          m_judge(std::move(judge)) {}

    void write(std::string_view bytes) override { m_check.write(bytes); }
    void judge(std::string_view sideText) override {
        check::Report report = m_check.finish(sideText, check::planOf(m_job, m_tools));
        check::addSense(m_job, m_tools, report.findings);
        m_judge(report);
    }

private:
    check::RunningCheck m_check;
    const Job& m_job;
    const ToolList& m_tools;
    Judge m_judge;
};

class Converter {
public:
    Converter(const ConvertOptions& options, std::ostream& out, std::ostream& err)
        : m_options(options), m_out(out), m_err(err),
          m_reader(programName, {options.answers, options.tools},
                   [this](std::string_view message) { say(message); }) {}

    int run() {
        return runEach(
            m_options.drawings, [this](std::size_t i) { work(i); },
            [this](std::string_view message) { say(message); });
    }

private:
    void work(std::size_t i) {
        m_reader.forgetReports();
        if (m_options.action == ConvertOptions::Action::show)
            show(m_options.drawings[i]);
        else
            convert(i);
        m_reader.sayWarnings(utf8FromPath(m_options.drawings[i]) + ": ");
    }

    void say(std::string_view message) { m_err << programName << ": " << message << '\n'; }

    void show(const std::filesystem::path& drawing) {
        m_out << describeDrawing(m_reader.readDrawingAlone(drawing));
    }

    void convert(std::size_t i) {
        const auto& drawing = m_options.drawings[i];
        Job job = m_reader.readJob(drawing);
        const ToolList& tools = m_reader.tools();
        if (trimBlanks(job.answers.gstrHeader[headerDate]).empty())
            job.answers.gstrHeader[headerDate] = m_options.date;
        m_reader.requireTools(job, drawing);
        const ProgramSize size = requireWritable(job, drawing);

        const auto output = m_options.outputPath(i);
        const auto files = filesOf(*m_options.dialect, output);
        for (const auto& file : files)
            refuseOverwritingInput(file, job);
        if (m_options.outputFolder)
            makeFolder(*m_options.outputFolder);
        if (!writeProgramFiles(job, tools, *m_options.dialect, m_options.outputNumber(i), output,
                               overwriting(), m_reader.logger(), checkFor(job, output, size).get()))
            throw Failure{ExitCode::job, utf8FromPath(drawing) + ": " + m_reader.takeLastReport()};
        if (m_options.sync)
            for (const auto& file : files)
                makeDurable(file);
        for (std::string& warning : commentWarnings(job, tools, *m_options.dialect))
            m_reader.report(std::move(warning));
        if (m_options.quiet)
            return;
        if (size.isLong())
            m_reader.report(longText(size));
        m_out << utf8FromPath(drawing) << " -> " << utf8FromPath(output) << std::endl;
    }

    // A file that no control can take is not begun.
    ProgramSize requireWritable(const Job& job, const std::filesystem::path& drawing) {
        ProgramSize size = programSize(job, m_reader.tools(), *m_options.dialect);
        if (size.isTooLong())
            throw Failure{ExitCode::job, utf8FromPath(drawing) + ": " + tooLongText(job, size)};
        return size;
    }

    // Says what is dangerous or wrong in the program before it takes its name.
    std::unique_ptr<ProgramCheck> checkFor(const Job& job, const std::filesystem::path& output,
                                           const ProgramSize& size) {
        if (size.lines > mostCheckedLines) {
            const std::string tooLong = "the program is too long to be checked";
            if (m_options.strict)
                throw Failure{ExitCode::findings,
                              utf8FromPath(output) + ": " + tooLong + ", so it is not written"};
            m_reader.report(tooLong + "; what can be seen of its answers is said");
            check::Findings findings;
            check::findSense(job, m_reader.tools(), findings);
            m_err << check::findingLines(utf8FromPath(output), findings, true);
            return {};
        }
        const check::Target* const target = check::findTarget(m_options.dialect->optionName);
        if (target == nullptr) {
            m_reader.report("the check does not know this control, so the program is not checked");
            return {};
        }
        return std::make_unique<CheckOfJob>(
            *target, size.lines, job, m_reader.tools(),
            [this, file = utf8FromPath(output)](const check::Report& report) {
                m_err << check::findingLines(file, report.findings, true);
                if (m_options.strict && !report.findings.isGood())
                    throw Failure{ExitCode::findings,
                                  file + ": the program is not written, something dangerous or "
                                         "wrong is in it"};
            });
    }

    Overwriting overwriting() const {
        if (m_options.force)
            return Overwriting::everything;
        return m_options.output ? Overwriting::programNamed : Overwriting::nothing;
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
    JobReader m_reader;
};

} // namespace

int runConverter(std::vector<std::string> arguments, std::ostream& out, std::ostream& err) {
    std::string usageError;
    const auto options = parseOptions(std::move(arguments), usageError);
    return runProgram({programName, out, err}, options, usageError, converterGuide,
                      [&] { return Converter(*options, out, err).run(); });
}

} // namespace torvik
