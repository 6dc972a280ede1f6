// SPDX-License-Identifier: MIT
// Reads what a job is made from, for a console program: the drawing, the answers for it and the
// tool library. What is reported on the way is gathered and said behind the work.
#pragma once

#include "base/logger.h"
#include "commands/drawing_run.h"
#include "commands/waiting.h"
#include "job/job.h"
#include "tools/tool_list.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace torvik {

struct JobSources {
    std::optional<std::filesystem::path> answers; // default: those saved for the drawing
    std::optional<std::filesystem::path> tools;   // default: the workshop's own list
};

class JobReader {
public:
    using Say = std::function<void(std::string_view message)>;

    // The log is that of the program. `say` hears what it waits for, and the warnings.
    JobReader(std::string_view programName, JobSources sources, Say say);

    // The tool library, read when it is asked for first. Raises FileError.
    const ToolList& tools();
    // The drawing with its answers. Raises Failure where one of them is refused, and FileError.
    Job readJob(const std::filesystem::path& drawing);
    // The drawing alone.
    Job readDrawingAlone(const std::filesystem::path& drawing);
    // Raises Failure where a group that is machined has no tool of the library.
    void requireTools(const Job& job, const std::filesystem::path& drawing);

    Logger& logger() { return m_logger; }
    // Something to be said as a warning.
    void report(std::string warning) { m_reported.push_back(std::move(warning)); }
    // The last report, as the reason of a failure; the others are forgotten.
    std::string takeLastReport();
    // Says what was reported although the work went on.
    void sayWarnings(const std::string& about);
    void forgetReports() { m_reported.clear(); }

private:
    // Why a drawing was not read, where that was reported.
    Failure readingFailure(const std::filesystem::path& drawing);
    WaitingNotice noticeFor(const std::vector<std::filesystem::path>& files) const;

    JobSources m_sources;
    Say m_say;
    std::vector<std::string> m_reported;
    bool m_isUnreadable = false; // what was reported last
    Logger m_logger;
    ToolList m_tools;
    bool m_toolsLoaded = false;
};

} // namespace torvik
