// SPDX-License-Identifier: MIT
#include "base/whole_file.h"

#include "base/file_calls.h"
#include "base/files.h"
#include "base/stop_signals.h"

#include <cerrno>

namespace torvik {
namespace {

namespace fs = std::filesystem;

// The file to write. Refuses what cannot be replaced by a file.
fs::path realTarget(const fs::path& file) {
    const std::string name = utf8FromPath(file);
    std::error_code error;
    const auto status = fs::status(file, error);
    if (status.type() == fs::file_type::none)
        throw FileError(name, "the file cannot be written: " + error.message());
    if (!fs::exists(status))
        return fs::is_symlink(fs::symlink_status(file, error)) ? fs::weakly_canonical(file) : file;
    if (fs::is_directory(status))
        throw FileError(name, "there is a folder of this name");
    if (!fs::is_regular_file(status))
        throw FileError(name, "this is no ordinary file");
    errno = 0;
    if (!calls::mayBeReplaced(file))
        throw FileError(name, "the file cannot be written: " + systemErrorText());
    fs::path real = fs::canonical(file, error);
    if (error)
        throw FileError(name, "the file cannot be replaced: " + error.message());
    return real;
}

} // namespace

WholeFile::WholeFile(const fs::path& target)
    : m_target(realTarget(target)), m_name(utf8FromPath(target)) {
    removeLeftOvers(m_target.parent_path());
    open();
    calls::takeRights(m_descriptor, m_target);
}

WholeFile::~WholeFile() {
    if (m_descriptor >= 0)
        calls::shut(m_descriptor);
}

void WholeFile::open() {
    m_descriptor = calls::createNameless(m_target.parent_path());
    m_isNameless = m_descriptor >= 0;
    if (m_isNameless)
        return;
    m_pending.emplace(m_target, ".new");
    errno = 0;
    m_descriptor = calls::createNew(m_pending->path());
    if (m_descriptor < 0)
        fail("the file cannot be opened for writing: " + systemErrorText());
}

void WholeFile::fail(const std::string& what) {
    const FileError error(m_name, what);
    if (!m_failure)
        m_failure = error;
    throw error;
}

void WholeFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        errno = 0;
        const long written = calls::put(m_descriptor, bytes.data(), bytes.size());
        if (written <= 0)
            fail("the file cannot be written: " + systemErrorText());
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

// The bytes are on the disk, under a name that can be exchanged for the own one.
void WholeFile::makeSure() {
    if (m_isNameless)
        m_pending.emplace(m_target, ".new");
    errno = 0;
    if (calls::sync(m_descriptor) != 0 ||
        (m_isNameless && calls::giveName(m_descriptor, m_pending->path()) != 0))
        fail("the file cannot be written to its end: " + systemErrorText());
}

void WholeFile::close() {
    if (m_failure)
        throw FileError(*m_failure);
    if (m_descriptor < 0)
        return;
    makeSure();
    errno = 0;
    const int descriptor = m_descriptor;
    m_descriptor = -1;
    if (calls::shut(descriptor) != 0)
        fail("the file cannot be written to its end: " + systemErrorText());
}

void WholeFile::takeName() {
    std::error_code error;
    fs::rename(m_pending->path(), m_target, error);
    if (error)
        fail("the file cannot be written: " + error.message());
    m_pending->keep();
}

void WholeFile::commit() {
    close();
    const StopWaits untilItIsThere;
    takeName();
}

// A second name for the file that is replaced, so that it can come back.
void WholeFile::keepOld() {
    std::error_code error;
    const auto status = fs::status(m_target, error);
    if (status.type() == fs::file_type::not_found)
        return;
    m_old.emplace(m_target, ".old");
    fs::create_hard_link(m_target, m_old->path(), error);
    if (error) // a disk that knows no second names
        fs::copy_file(m_target, m_old->path(), error);
    if (error)
        fail("the file cannot be replaced: " + error.message());
}

// What was there before comes again.
void WholeFile::withdraw() {
    std::error_code error;
    if (!m_old) {
        fs::remove(m_target, error);
        return;
    }
    fs::rename(m_old->path(), m_target, error);
    if (error)
        fs::copy_file(m_old->path(), m_target, fs::copy_options::overwrite_existing, error);
    if (error) {
        m_old->keep();
        fail("the earlier file could not be put back; it is now " + utf8FromPath(m_old->path()));
    }
}

void commitBoth(WholeFile& first, WholeFile& second) {
    first.close();
    second.close();
    const StopWaits untilBothAreThere;
    first.keepOld();
    first.takeName();
    try {
        second.takeName();
    } catch (const FileError&) {
        first.withdraw();
        throw;
    }
    first.m_old.reset();
}

void makeDurable(const fs::path& saved) {
    std::error_code error;
    const fs::path real = fs::canonical(saved, error);
    errno = error.value();
    if (error || calls::syncName(real) != 0)
        throw FileError(utf8FromPath(saved), "the file is written, but it may not be safe on the "
                                             "disk yet: " +
                                                 systemErrorText());
}

void saveWhole(const fs::path& target, std::string_view bytes) {
    WholeFile file(target);
    file.write(bytes);
    file.commit();
}

} // namespace torvik
