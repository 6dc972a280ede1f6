// SPDX-License-Identifier: MIT
// The locks of settings files, taken in two seconds or not at all. QSettings waits half a minute
// for the lock of a program that died, and for ever for that of one that hangs, or one whose file
// cannot be removed: before it saves, ask isSettingsLockFree.
#pragma once

#include <QtCore/QLockFile>
#include <QtCore/QString>

namespace torvik {

// Waits for the lock; one that is left over is removed. False where it cannot be had.
bool takeSettingsLock(QLockFile& lock);

// Whether a QSettings of this file can save now: its lock can be taken, and goes again.
bool isSettingsLockFree(const QString& settingsFile);

} // namespace torvik
