// SPDX-License-Identifier: MIT
#include "check/command/checker.h"

#include "base/files.h"
#include "check/command/options.h"
#include "check/command/program_files.h"
#include "check/command/report_text.h"
#include "check/plan/plan.h"
#include "check/sense/sense.h"
#include "commands/drawing_run.h"
#include "commands/job/job_reader.h"
#include "commands/program_run.h"
#include "commands/waiting.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <string_view>
#include <utility>

namespace torvik::check {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view programName = "torvik-check";

class Checker {
public:
    Checker(const CheckOptions& options, std::ostream& out, std::ostream& err)
        : m_options(options), m_out(out), m_err(err),
          m_reader(programName, {options.answers, options.tools},
                   [this](std::string_view message) { say(message); }) {}

    int run() {
        const auto say = [this](std::string_view message) { this->say(message); };
        if (m_options.drawing) {
            const int read = runEach(
                {*m_options.drawing}, [this](std::size_t) { readJob(); }, say);
            if (read != 0)
                return static_cast<int>(ExitCode::file);
        }
        const int named = runEach(
            m_options.files, [this](std::size_t i) { find(m_options.files[i]); }, say);
        begin();
        const int checked = runEach(
            m_programs, [this](std::size_t i) { check(m_programs[i]); }, say);
        if (m_options.form == CheckOptions::Form::json)
            m_out << (m_isFirst ? "[]\n" : "]\n");
        if (named != 0 || checked != 0)
            return named != 0 ? named : checked;
        return static_cast<int>(m_areGood ? ExitCode::done : ExitCode::findings);
    }

private:
    void say(std::string_view message) { m_err << programName << ": " << message << '\n'; }

    void readJob() {
        m_job = m_reader.readJob(*m_options.drawing);
        m_reader.requireTools(*m_job, *m_options.drawing);
        m_reader.sayWarnings(utf8FromPath(*m_options.drawing) + ": ");
    }

    void find(const fs::path& path) {
        for (const fs::path& program : programsOf(path))
            m_programs.push_back(program);
    }

    void begin() {
        for (const fs::path& program : m_programs)
            m_width = std::max(m_width, widthOf(utf8FromPath(program)));
        if (m_options.form == CheckOptions::Form::table && !m_programs.empty())
            m_out << tableHead(m_width);
    }

    ProgramBytes read(const fs::path& path) {
        const WaitingNotice notice({path}, [this](std::string_view message) { say(message); });
        return readProgramFile(path);
    }

    Report checked(const ProgramBytes& bytes) {
        if (!m_job)
            return checkProgram(bytes.program, bytes.sideText, m_options.target);
        Report report = checkProgramOfJob(bytes.program, bytes.sideText, *m_job, m_reader.tools(),
                                          m_options.target);
        addSense(*m_job, m_reader.tools(), report.findings);
        return report;
    }

    void check(const fs::path& path) {
        const ProgramBytes bytes = read(path);
        const Report report = checked(bytes);
        m_areGood = m_areGood && report.findings.isGood();
        print(utf8FromPath(path), report);
        m_out.flush();
    }

    void print(const std::string& file, const Report& report) {
        switch (m_options.form) {
        case CheckOptions::Form::text:
            m_out << reportText(file, report, m_options.quiet);
            break;
        case CheckOptions::Form::table:
            if (!m_options.quiet || !report.findings.isGood())
                m_out << tableLine(file, report, m_width);
            break;
        case CheckOptions::Form::json:
            m_out << (m_isFirst ? "[" : ",\n ") << reportJson(file, report, m_options.quiet);
            m_isFirst = false;
            break;
        }
    }

    const CheckOptions& m_options;
    std::ostream& m_out;
    std::ostream& m_err;
    JobReader m_reader;
    std::optional<Job> m_job;
    std::vector<fs::path> m_programs;
    std::size_t m_width = std::string_view("program").size();
    bool m_areGood = true;
    bool m_isFirst = true;
};

} // namespace

int runChecker(std::vector<std::string> arguments, std::ostream& out, std::ostream& err) {
    std::string usageError;
    const auto options = parseOptions(std::move(arguments), usageError);
    return runProgram({programName, out, err}, options, usageError, checkerGuide,
                      [&] { return Checker(*options, out, err).run(); });
}

} // namespace torvik::check
