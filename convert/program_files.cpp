// SPDX-License-Identifier: MIT
#include "convert/program_files.h"

#include "base/errors.h"
#include "base/files.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "gcode/program_output.h"

#include <optional>

namespace torvik {
namespace {

namespace fs = std::filesystem;

// A file under a temporary name, which takes its own name when it is whole and otherwise goes.
class PendingFile {
public:
    explicit PendingFile(fs::path target) : m_target(std::move(target)), m_pending(m_target) {
        m_pending += ".part";
        m_sink.emplace(m_pending);
    }
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;
    ~PendingFile() {
        m_sink.reset();
        std::error_code ignored;
        if (!m_committed)
            fs::remove(m_pending, ignored);
    }

    ByteSink& sink() { return *m_sink; }
    void close() { m_sink->close(); }
    void commit() {
        std::error_code error;
        fs::rename(m_pending, m_target, error);
        if (error)
            throw FileError(utf8FromPath(m_target),
                            "the file cannot be written: " + error.message());
        m_committed = true;
    }
    // Takes a committed file back.
    void withdraw() {
        std::error_code ignored;
        fs::remove(m_target, ignored);
    }

private:
    fs::path m_target;
    fs::path m_pending;
    std::optional<FileSink> m_sink;
    bool m_committed = false;
};

void refuseUnwritable(const fs::path& file, bool overwrite) {
    std::error_code error;
    const auto status = fs::status(file, error);
    if (fs::is_directory(status))
        throw FileError(utf8FromPath(file), "there is a folder of this name");
    if (!overwrite && fs::exists(status))
        throw FileError(utf8FromPath(file), "the file exists already; --force overwrites it");
}

} // namespace

bool writeProgramFiles(Job& job, const ToolList& tools, const Dialect& dialect, std::int16_t number,
                       const fs::path& program, bool overwrite, Logger& logger) {
    const fs::path sideText = sideTextPath(program);
    refuseUnwritable(program, overwrite);
    if (dialect.needsNumber())
        refuseUnwritable(sideText, overwrite);

    PendingFile pendingProgram(program);
    if (!writeProgram(job, tools, dialect, number, pendingProgram.sink(), logger))
        return false;
    pendingProgram.close();
    if (!dialect.needsNumber()) {
        pendingProgram.commit();
        return true;
    }
    PendingFile pendingText(sideText);
    writeSideText(job, tools, utf8FromPath(program.filename()), pendingText.sink(), logger);
    pendingText.close();
    pendingProgram.commit();
    try {
        pendingText.commit();
    } catch (const FileError&) {
        pendingProgram.withdraw();
        throw;
    }
    return true;
}

} // namespace torvik
