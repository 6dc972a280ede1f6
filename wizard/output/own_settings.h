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
// False where the settings cannot be saved and stay as they are, after two seconds at most. The
// caller tells the user where something is lost by it, and not where it is a mere convenience.
bool saveOwnSetting(const QString& key, const QVariant& value);

} // namespace torvik
