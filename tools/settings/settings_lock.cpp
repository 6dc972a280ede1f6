// SPDX-License-Identifier: MIT
#include "tools/settings/settings_lock.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>

#include <chrono>

namespace torvik {
namespace {

using namespace std::chrono_literals;

// A save holds its lock for milliseconds.
constexpr auto longestWait = 2000ms;
constexpr auto staleAge = 1500ms;
constexpr unsigned long pollMilliseconds = 20;

} // namespace

bool takeSettingsLock(QLockFile& lock) {
    const QDeadlineTimer deadline(longestWait);
    while (!lock.tryLock(0)) {
        if (lock.error() != QLockFile::LockFailedError || deadline.hasExpired())
            return false;
        QThread::msleep(pollMilliseconds);
    }
    return true;
}

bool isSettingsLockFree(const QString& settingsFile) {
    const QString name = settingsFile + QStringLiteral(".lock"); // as QSettings names its own
    {
        QLockFile lock(name);
        lock.setStaleLockTime(staleAge);
        if (!takeSettingsLock(lock))
            return false;
    }
    // What still is there belongs to another save, which ends soon, or can never be removed.
    const QDeadlineTimer deadline(longestWait);
    while (QFileInfo::exists(name)) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(pollMilliseconds);
    }
    return true;
}

} // namespace torvik
