// SPDX-License-Identifier: MIT
// The locks of settings files, taken in less than two seconds or not at all. QSettings waits half a
// minute for the lock of a program that died, and for ever for that of one that hangs, or one whose
// file cannot be removed: before it saves, ask isSettingsLockFree.
#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QLockFile>
#include <QtCore/QString>

#include <chrono>

namespace torvik {

// The name of the lock that QSettings takes for a file, and the age at which it is left over for
// sure.
QString settingsLockName(const QString& settingsFile);
inline constexpr std::chrono::milliseconds settingsStaleAge{1200};

// For all waits of one save together.
QDeadlineTimer settingsDeadline();

// Waits for the lock; one that is left over is removed, and one whose maker died before it wrote
// its name. False where it cannot be had.
bool takeSettingsLock(QLockFile& lock, const QDeadlineTimer& deadline);

// Whether a QSettings of this file can save now: its lock can be taken, and goes again. Programs of
// this machine have their turns (settings_turn.h), so it stays so.
bool isSettingsLockFree(const QString& settingsFile, const QDeadlineTimer& deadline);

} // namespace torvik
