// SPDX-License-Identifier: MIT
#include "tools/settings/settings_turn.h"

#include "base/user_folders.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>

#include <array>

namespace torvik {
namespace {

constexpr unsigned long turnPoll = 1;

// As many copies as these wait in the order in which they came; more wait outside, in no order.
constexpr std::size_t doors = 12;

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
    // One behind the other at the doors of a corridor: who goes through one leaves the one before
    // to the next, so nobody is overtaken, and who ends a turn begins at the first door again.
    std::array<ProcessLock, 2> door;
    for (std::size_t i = 0; i < doors; ++i) {
        if (!waitFor(door[i % 2], folder / (name + ".door" + std::to_string(i)), deadline))
            return false;
        door[(i + 1) % 2].release();
    }
    return waitFor(m_turn, folder / (name + ".turn"), deadline);
}

} // namespace torvik
