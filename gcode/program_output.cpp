// SPDX-License-Identifier: MIT
#include "gcode/program_output.h"

#include "base/errors.h"
#include "base/files.h"
#include "base/picture.h"
#include "job/job.h"

#include <cerrno>
#include <cstring>

namespace torvik {
namespace {

constexpr std::size_t bufferBytes = std::size_t{1} << 18;
constexpr std::string_view lineEndText = "\r\n";
constexpr std::int16_t lastBlockNumber = 9999;
constexpr std::size_t blockNumberBytes = 24;

} // namespace

FileSink::FileSink(const std::filesystem::path& file) : m_path(file) {
    // The lines are gathered in large pieces already.
    m_file.rdbuf()->pubsetbuf(nullptr, 0);
    errno = 0;
    m_file.open(file, std::ios::binary | std::ios::trunc);
    if (!m_file)
        fail("the file cannot be opened for writing: ");
}

void FileSink::write(std::string_view bytes) {
    errno = 0;
    if (!m_file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        fail("the file cannot be written: ");
}

void FileSink::close() {
    errno = 0;
    m_file.close();
    if (!m_file)
        fail("the file cannot be written to its end: ");
}

void FileSink::fail(const char* what) {
    const FileError error(utf8FromPath(m_path), what + systemErrorText());
    if (!m_failure)
        m_failure = error;
    throw error;
}

ProgramOutput::ProgramOutput(ByteSink& sink) : m_sink(sink), m_buffer(bufferBytes, '\0') {}

void ProgramOutput::WriteLine(std::string_view text, bool lineEnd) {
    makeRoom(text.size() + lineEndText.size());
    char* const start = m_buffer.data() + m_used;
    char* out = start;
    if (!text.empty())
        std::memcpy(out, text.data(), text.size());
    out += text.size();
    if (lineEnd) {
        std::memcpy(out, lineEndText.data(), lineEndText.size());
        out += lineEndText.size();
    }
    m_used += static_cast<std::size_t>(out - start);
}

void ProgramOutput::CommandLine(Job& job, std::string_view text) {
    ++job.gintLineNumber;
    if (job.gintLineNumber > lastBlockNumber)
        job.gintLineNumber = 1;
    makeRoom(blockNumberBytes + text.size() + lineEndText.size());
    char* const start = m_buffer.data() + m_used;
    char* out = start;
    *out++ = 'N';
    out = putInteger(out, job.gintLineNumber);
    *out++ = ' ';
    m_used += static_cast<std::size_t>(out - start);
    WriteLine(text);
}

void ProgramOutput::flush() {
    const auto gathered = std::string_view(m_buffer).substr(0, m_used);
    m_used = 0;
    if (m_failed)
        return;
    m_failed = true;
    m_sink.write(gathered);
    m_failed = false;
}

void ProgramOutput::makeRoom(std::size_t bytes) {
    if (m_buffer.size() - m_used >= bytes)
        return;
    flush();
    if (m_buffer.size() < bytes)
        m_buffer.resize(bytes);
}

} // namespace torvik
