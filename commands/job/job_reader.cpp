// SPDX-License-Identifier: MIT
#include "commands/job/job_reader.h"

#include "answers/import_drawing.h"
#include "answers/program_folder.h"
#include "answers/saved_text.h"
#include "answers/tool_check.h"
#include "base/errors.h"
#include "base/files.h"
#include "commands/drawing_run.h"
#include "job/hpgl_reader.h"
#include "tools/settings_file_reader.h"
#include "tools/tool_store.h"

#include <memory>
#include <utility>

namespace torvik {

JobReader::JobReader(std::string_view programName, JobSources sources, Say say)
    : m_sources(std::move(sources)), m_say(std::move(say)),
      m_logger(logFile(programName), [this](const ErrorReport& error) {
          report(std::string(error.cause));
          m_isUnreadable = error.isUnreadable;
      }) {}

WaitingNotice JobReader::noticeFor(const std::vector<std::filesystem::path>& files) const {
    return {files, m_say};
}

void JobReader::sayWarnings(const std::string& about) {
    for (const std::string& cause : std::exchange(m_reported, {}))
        m_say("warning: " + about + cause);
}

std::string JobReader::takeLastReport() {
    const auto reported = std::exchange(m_reported, {});
    return reported.empty() ? std::string("the reason is in the log") : reported.back();
}

Failure JobReader::readingFailure(const std::filesystem::path& drawing) {
    const std::string name = utf8FromPath(drawing);
    const std::string cause = takeLastReport();
    return {m_isUnreadable ? ExitCode::file : ExitCode::job,
            cause.starts_with(name) ? cause : name + ": " + cause};
}

Job JobReader::readDrawingAlone(const std::filesystem::path& drawing) {
    requireReadable(drawing, maxDrawingBytes);
    Job job;
    const WaitingNotice notice = noticeFor({drawing});
    if (!readDrawing(job, drawing, m_logger))
        throw readingFailure(drawing);
    return job;
}

const ToolList& JobReader::tools() {
    if (m_toolsLoaded)
        return m_tools;
    const auto& file = m_sources.tools;
    const WaitingNotice notice = noticeFor({file.value_or(userSettingsFile())});
    const std::unique_ptr<RegistryReader> registry =
        file ? std::make_unique<SettingsFileReader>(*file, SettingsFileReader::IfUnreadable::raises)
             : openRegistryReader();
    const auto value = [&](const char* name) { return registry->strRegistryValueGet(name, ""); };
    m_logger.setSwitches(LogSwitches::fromTexts(value("LogErrors"), value("LogTrace"),
                                                value("LogInfo"), value("LogExclude")));
    ToolDataLoad(m_tools, *registry, m_logger);
    m_toolsLoaded = true;
    sayWarnings((file ? utf8FromPath(*file) : registryPlace()) + ": ");
    return m_tools;
}

Job JobReader::readJob(const std::filesystem::path& drawing) {
    requireReadable(drawing, maxDrawingBytes);
    const ToolList& known = tools();
    const auto& file = m_sources.answers;
    if (file)
        requireReadable(*file, maxSavedBytes);
    Job job;
    const ImportResult result = [&] {
        const WaitingNotice notice = noticeFor({drawing, file.value_or(std::filesystem::path())});
        return file ? importDrawingWithAnswers(job, drawing, known, *file, m_logger)
                    : importDrawing(job, drawing, known, savedSettingsFolder(), m_logger);
    }();
    if (!result.imported)
        throw readingFailure(drawing);
    const std::string answers = file ? utf8FromPath(*file) : job.answers.gstrSavedFile;
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
    return job;
}

void JobReader::requireTools(const Job& job, const std::filesystem::path& drawing) {
    if (const auto group = groupWithoutTool(job, tools()))
        throw Failure{ExitCode::job,
                      utf8FromPath(drawing) + ": " +
                          groupText(job.answers.gudtPens[group->pen], group->radius) +
                          " have no tool of the tool library"};
}

} // namespace torvik
