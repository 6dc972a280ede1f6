// SPDX-License-Identifier: MIT
#include "wizard/output/own_settings.h"

#include "base/errors.h"
#include "base/files.h"
#include "base/whole_file.h"
#include "tools/settings/settings_lock.h"
#include "tools/settings/settings_turn.h"
#include "tools/settings_file_reader.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

namespace torvik {
namespace {

// The text of the settings with the value in it. QSettings alone would save the value over a file
// that it could not read, and all others would be lost: so it works on a copy.
std::string textWith(const std::string& text, const QString& key, const QVariant& value) {
    QTemporaryFile copy;
    const bool isCopied =
        copy.open() && copy.write(QByteArray::fromStdString(text)) >= 0 && copy.flush();
    copy.close();
    QSettings settings(copy.fileName(), QSettings::IniFormat);
    settings.setValue(key, value);
    settings.sync();
    if (!isCopied || settings.status() == QSettings::AccessError)
        throw FileError(copy.fileName().toStdString(), "the file cannot be written");
    return settingsText(pathFromUtf8(copy.fileName().toStdString()));
}

} // namespace

std::unique_ptr<QSettings> ownSettings() {
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                       QStringLiteral("Torvik"), QStringLiteral("Torvik"));
}

bool saveOwnSetting(const QString& key, const QVariant& value) {
    const QString name = ownSettings()->fileName();
    if (!QDir().mkpath(QFileInfo(name).absolutePath()))
        return false;
    SettingsTurn turn(name);
    QLockFile lock(settingsLockName(name));
    lock.setStaleLockTime(settingsStaleAge);
    const QDeadlineTimer deadline = settingsDeadline();
    if (!turn.take(deadline) || !takeSettingsLock(lock, deadline))
        return false;
    try {
        const auto file = pathFromUtf8(name.toStdString());
        saveWhole(file, textWith(settingsText(file), key, value));
        return true;
    } catch (const FileError&) {
        return false;
    }
}

} // namespace torvik
