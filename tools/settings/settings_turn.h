// SPDX-License-Identifier: MIT
// The turn of one program among those of this user and machine that save the same settings file.
// The lock files of the settings know no queue, so who waits for them may wait for ever; here it is
// first come, first served. A turn ends with its program. Where the machine has no place for it,
// nobody waits for it.
#pragma once

#include "base/process_lock.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QString>

#include <utility>

namespace torvik {

class SettingsTurn {
public:
    explicit SettingsTurn(QString settingsFile) : m_settings(std::move(settingsFile)) {}

    // Waits for the turn; the folder of the settings is there. False where it did not come in time.
    bool take(const QDeadlineTimer& deadline);
    void end() { m_turn.release(); }

private:
    QString m_settings;
    ProcessLock m_turn;
};

} // namespace torvik
