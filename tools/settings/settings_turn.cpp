// SPDX-License-Identifier: MIT
#include "tools/settings/settings_turn.h"

#include "base/user_folders.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>

namespace torvik {
namespace {

constexpr unsigned long turnPoll = 1;

// The same for all names that lead to the folder.
std::string turnName(const QString& settingsFile) {
    const QFileInfo file(settingsFile);
    const QString real =
        QFileInfo(file.absolutePath()).canonicalFilePath() + u'/' + file.fileName();
    return "torvik-settings-" +
           QCryptographicHash::hash(real.toUtf8(), QCryptographicHash::Sha1).toHex().toStdString();
}

bool waitFor(ProcessLock& lock, const std::filesystem::path& file, const QDeadlineTimer& deadline) {
    while (lock.tryLock(file) == ProcessLock::Result::heldByOther) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(turnPoll);
    }
    return true;
}

} // namespace

bool SettingsTurn::take(const QDeadlineTimer& deadline) {
    const std::filesystem::path folder = userRuntimeFolder();
    if (folder.empty())
        return true;
    const std::string name = turnName(m_settings);
    // One at a time stands at the door and waits for the turn: who ends a turn cannot take the next
    // one before the one at the door has it.
    ProcessLock door;
    return waitFor(door, folder / (name + ".door"), deadline) &&
           waitFor(m_turn, folder / (name + ".turn"), deadline);
}

} // namespace torvik
