// SPDX-License-Identifier: MIT
// The desktop program's own settings (recent drawings, last target). What the workshop's
// programs share is in the registry instead.
#pragma once

#include <QSettings>
#include <QString>
#include <QVariant>

#include <memory>

namespace torvik {

// To read from.
std::unique_ptr<QSettings> ownSettings();
// Leaves the settings as they are where they cannot be saved, after two seconds at most.
void saveOwnSetting(const QString& key, const QVariant& value);

} // namespace torvik
