// SPDX-License-Identifier: MIT
#include "tools/settings/settings_file_registry.h"

#include "base/files.h"
#include "base/stop_signals.h"
#include "tools/settings/settings_format.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>
#include <QtCore/QThread>

#include <chrono>

namespace torvik {
namespace {

using namespace std::chrono_literals;

// A save holds its lock for milliseconds. QSettings itself would wait half a minute for the lock of
// a program that died, and for ever for that of one that hangs.
constexpr auto longestWait = 2000ms;
constexpr auto staleAge = 1500ms;
constexpr unsigned long pollMilliseconds = 20;

QString toQt(const std::filesystem::path& path) {
    return QString::fromStdString(utf8FromPath(path));
}

// Whether the lock can be had now; one that is left over is removed.
bool isLockFree(const QString& file) {
    QLockFile lock(file + QStringLiteral(".lock"));
    lock.setStaleLockTime(staleAge);
    QDeadlineTimer deadline(longestWait);
    while (!lock.tryLock(0)) {
        if (lock.error() != QLockFile::LockFailedError || deadline.hasExpired())
            return false;
        QThread::msleep(pollMilliseconds);
    }
    return true;
}

} // namespace

SettingsFileRegistry::SettingsFileRegistry(const std::filesystem::path& file)
    : m_settings(toQt(file), settingsFormat()) {}

std::string SettingsFileRegistry::strRegistryValueGet(std::string_view name,
                                                      std::string_view defaultText) const {
    std::optional<std::string> value;
    if (const auto unsaved = m_unsaved.find(name); unsaved != m_unsaved.end()) {
        value = unsaved->second;
    } else {
        m_settings.sync();
        value = settingsValue(m_settings.value(settingsKey(name)));
    }
    return value && value->size() <= maxValueBytes ? *value : std::string(defaultText);
}

void SettingsFileRegistry::RegistryValuePut(std::string_view name, std::string_view data) {
    m_unsaved.insert_or_assign(std::string(name), std::string(data));
    if (m_batches == 0)
        save();
}

void SettingsFileRegistry::endBatch() {
    if (--m_batches == 0)
        save();
}

// What cannot be saved is dropped before QSettings hears of it, which would try again later and
// then undo what others have saved meanwhile.
bool SettingsFileRegistry::canBeSaved() const {
    const QString file = m_settings.fileName();
    m_settings.sync();
    return QDir().mkpath(QFileInfo(file).absolutePath()) && isLockFree(file) &&
           m_settings.isWritable() && !isUnreadable(m_settings);
}

void SettingsFileRegistry::save() {
    if (!m_unsaved.empty() && canBeSaved()) {
        const StopWaits untilItIsSaved;
        for (const auto& [name, data] : m_unsaved)
            m_settings.setValue(settingsKey(name), settingsEntry(name, data));
        m_settings.sync();
    }
    m_unsaved.clear();
}

} // namespace torvik
