// SPDX-License-Identifier: MIT
#include "tools/settings/settings_lock.h"

#include <QtCore/QFileInfo>
#include <QtCore/QThread>

namespace torvik {
namespace {

using namespace std::chrono_literals;

// A save holds its lock for milliseconds.
constexpr auto longestWait = 1600ms;
constexpr unsigned long pollMilliseconds = 20;

// Between the making of a lock and the writing of its owner's name.
constexpr auto longestNameless = 200ms;

} // namespace

QString settingsLockName(const QString& settingsFile) {
    return settingsFile + QStringLiteral(".lock");
}

QDeadlineTimer settingsDeadline() {
    return QDeadlineTimer(longestWait);
}

bool takeSettingsLock(QLockFile& lock, const QDeadlineTimer& deadline) {
    QDeadlineTimer nameless(longestNameless);
    while (!lock.tryLock(0)) {
        if (lock.error() != QLockFile::LockFailedError || deadline.hasExpired())
            return false;
        if (const QFileInfo file(lock.fileName()); !file.isFile() || file.size() > 0)
            nameless.setRemainingTime(longestNameless);
        else if (nameless.hasExpired())
            lock.removeStaleLockFile();
        QThread::msleep(pollMilliseconds);
    }
    return true;
}

bool isSettingsLockFree(const QString& settingsFile, const QDeadlineTimer& deadline) {
    const QString name = settingsLockName(settingsFile);
    {
        QLockFile lock(name);
        lock.setStaleLockTime(settingsStaleAge);
        if (!takeSettingsLock(lock, deadline))
            return false;
    }
    // What still is there belongs to another save, which ends soon, or can never be removed.
    while (QFileInfo::exists(name)) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(pollMilliseconds);
    }
    return true;
}

} // namespace torvik
