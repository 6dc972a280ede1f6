// SPDX-License-Identifier: MIT
#include "tools/settings/settings_file_registry.h"

#include "base/errors.h"
#include "base/files.h"
#include "base/stop_signals.h"
#include "tools/settings/settings_format.h"
#include "tools/settings_file_reader.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>

#include <chrono>

namespace torvik {
namespace {

using namespace std::chrono_literals;

// A save holds its lock for milliseconds. QSettings itself would wait half a minute for the lock of
// a program that died, and for ever for that of one that hangs.
constexpr auto longestWait = 2000ms;
constexpr auto staleAge = 1500ms;
// A batch waits for the lock of a save, so it may last longer.
constexpr auto staleBatchAge = 4000ms;
constexpr unsigned long pollMilliseconds = 20;

QString toQt(const std::filesystem::path& path) {
    return QString::fromStdString(utf8FromPath(path));
}

// Waits for the lock; one that is left over is removed.
bool takeLock(QLockFile& lock) {
    QDeadlineTimer deadline(longestWait);
    while (!lock.tryLock(0)) {
        if (lock.error() != QLockFile::LockFailedError || deadline.hasExpired())
            return false;
        QThread::msleep(pollMilliseconds);
    }
    return true;
}

bool makeFolderOf(const std::filesystem::path& file) {
    return QDir().mkpath(QFileInfo(toQt(file)).absolutePath());
}

} // namespace

SettingsFileRegistry::SettingsFileRegistry(std::filesystem::path file)
    : m_file(std::move(file)), m_batchLock(toQt(m_file) + QStringLiteral(".batch.lock")) {
    m_batchLock.setStaleLockTime(staleBatchAge);
}

SettingsFileRegistry::Stamp SettingsFileRegistry::stamp() const {
    std::error_code error;
    Stamp now;
    if (std::filesystem::status(m_file, error).type() == std::filesystem::file_type::not_found)
        return now;
    if (!error)
        now.time = std::filesystem::last_write_time(m_file, error);
    if (!error)
        now.size = std::filesystem::file_size(m_file, error);
    if (error)
        throw FileError(utf8FromPath(m_file), "the file cannot be read: " + error.message());
    return now;
}

void SettingsFileRegistry::read() const {
    const Stamp now = stamp();
    m_text.reset();
    m_text.emplace(settingsText(m_file), settingsSection);
    m_stamp = now;
}

std::optional<std::string> SettingsFileRegistry::storedText(std::string_view name) const {
    if (!m_text || (!m_inBatch && stamp() != m_stamp))
        read();
    const auto value = m_text->values().find(name);
    return value != m_text->values().end() ? std::optional(value->second) : std::nullopt;
}

std::string SettingsFileRegistry::storedValueGet(std::string_view name,
                                                 std::string_view defaultText) const {
    try {
        const auto text = storedText(name);
        return text && text->size() <= maxValueBytes ? *text : std::string(defaultText);
    } catch (const FileError&) {
        return std::string(defaultText);
    }
}

bool SettingsFileRegistry::store(const Values& values) {
    if (!makeFolderOf(m_file))
        return false;
    {
        QLockFile lock(toQt(m_file) + QStringLiteral(".lock")); // as QSettings names its own
        lock.setStaleLockTime(staleAge);
        if (!takeLock(lock))
            return false;
    }
    const StopWaits untilItIsSaved;
    return saveSettings(toQt(m_file), values);
}

bool SettingsFileRegistry::lock() {
    try {
        if (!makeFolderOf(m_file) || !takeLock(m_batchLock))
            return false;
        read();
        m_inBatch = true;
    } catch (const FileError&) {
        m_text.reset();
    }
    return m_inBatch;
}

void SettingsFileRegistry::unlock() {
    m_inBatch = false;
    m_batchLock.unlock();
}

} // namespace torvik
