// SPDX-License-Identifier: MIT
#include "wizard/output/own_settings.h"

#include "tools/settings/settings_lock.h"

#include <QDir>
#include <QFileInfo>

namespace torvik {

std::unique_ptr<QSettings> ownSettings() {
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                       QStringLiteral("Torvik"), QStringLiteral("Torvik"));
}

void saveOwnSetting(const QString& key, const QVariant& value) {
    const auto settings = ownSettings();
    const QString file = settings->fileName();
    if (QDir().mkpath(QFileInfo(file).absolutePath()) && isSettingsLockFree(file))
        settings->setValue(key, value);
}

} // namespace torvik
