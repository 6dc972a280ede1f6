// SPDX-License-Identifier: MIT
#include "convert/program_files.h"

#include "base/errors.h"
#include "base/files.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "gcode/program_output.h"

#include <optional>

#ifdef _WIN32
#include <process.h>
#else
#include <unistd.h>
#endif

namespace torvik {
namespace {

namespace fs = std::filesystem;

long processId() {
#ifdef _WIN32
    return _getpid();
#else
    return getpid();
#endif
}

// A file under a temporary name, which takes its own name when it is whole and otherwise goes.
class PendingFile {
public:
    // `part` keeps the temporary names of one run apart.
    PendingFile(const fs::path& target, const char* part)
        : m_target(target), m_pending(target.parent_path() /
                                      (".torvik-" + std::to_string(processId()) + "." + part)) {
        m_sink.emplace(m_pending, utf8FromPath(m_target)); // the user knows it by its own name
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

    // Raises what an error trap caught on the way, and closes the file.
    void close() {
        if (m_sink->failure())
            throw FileError(*m_sink->failure());
        m_sink->close();
    }

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

// The file to write: where the name is a link, what it leads to. Refuses what cannot be replaced
// by a file.
fs::path writableTarget(const fs::path& file, bool overwrite) {
    std::error_code error;
    const auto status = fs::status(file, error);
    if (!fs::exists(status))
        return file;
    if (fs::is_directory(status))
        throw FileError(utf8FromPath(file), "there is a folder of this name");
    if (!fs::is_regular_file(status))
        throw FileError(utf8FromPath(file), "this is no ordinary file");
    if (!overwrite)
        throw FileError(utf8FromPath(file), "the file exists already; --force overwrites it");
    fs::path real = fs::canonical(file, error);
    if (error)
        throw FileError(utf8FromPath(file), "the file cannot be replaced: " + error.message());
    return real;
}

} // namespace

bool writeProgramFiles(Job& job, const ToolList& tools, const Dialect& dialect, std::int16_t number,
                       const fs::path& program, bool overwrite, Logger& logger) {
    PendingFile pendingProgram(writableTarget(program, overwrite), "program");
    const bool whole = writeProgram(job, tools, dialect, number, pendingProgram.sink(), logger);
    pendingProgram.close();
    if (!whole)
        return false;
    if (!dialect.needsNumber()) {
        pendingProgram.commit();
        return true;
    }
    PendingFile pendingText(writableTarget(sideTextPath(program), overwrite), "text");
    writeSideText(job, tools, utf8FromPath(program.filename()), pendingText.sink(), logger);
    pendingText.close();
    pendingText.commit();
    try {
        pendingProgram.commit();
    } catch (const FileError&) {
        pendingText.withdraw();
        throw;
    }
    return true;
}

} // namespace torvik
