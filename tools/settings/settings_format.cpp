// SPDX-License-Identifier: MIT
#include "tools/settings/settings_format.h"

#include "base/errors.h"
#include "base/files.h"
#include "tools/ini_text.h"
#include "tools/settings_file_reader.h"

#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>

#include <chrono>

namespace torvik {
namespace {

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QByteArray bytesOf(std::string_view text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

bool readNothing(QIODevice& /*device*/, QSettings::SettingsMap& /*map*/) {
    return true;
}

// Other programs see a save by the file's size and time alone. So that no two saves have the same
// time, a save in the same millisecond as the one before is dated a little later.
bool setDistinctTime(QFileDevice& file) {
    const qint64 before = QFileInfo(file.fileName()).lastModified().toMSecsSinceEpoch();
    if (!file.flush())
        return false;
    if (QDateTime::currentMSecsSinceEpoch() <= before)
        file.setFileTime(QDateTime::fromMSecsSinceEpoch(before + 1),
                         QFileDevice::FileModificationTime);
    return true;
}

// Runs under the lock of QSettings. The map holds this save's entries, last, and those of earlier
// ones.
bool writeEntries(QIODevice& device, const QSettings::SettingsMap& map) {
    auto* const file = qobject_cast<QFileDevice*>(&device);
    if (file == nullptr || map.isEmpty())
        return false;
    try {
        IniText ini(settingsText(pathFromUtf8(file->fileName().toStdString())), settingsSection);
        const auto entries = map.last().value<QByteArrayList>();
        for (qsizetype i = 0; i + 1 < entries.size(); i += 2)
            ini.setValue(viewOf(entries[i]), viewOf(entries[i + 1]));
        const QByteArray text = bytesOf(ini.text());
        return file->write(text) == text.size() && setDistinctTime(*file);
    } catch (const FileError&) {
        return false;
    }
}

QSettings::Format settingsFormat() {
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("ini"), readNothing, writeEntries);
    return format;
}

// A key behind those of all earlier saves.
QString nextKey() {
    constexpr int digits = 20;
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return QString::number(std::chrono::nanoseconds(now).count()).rightJustified(digits, u'0');
}

// QSettings tells a failure of any of its steps, also where it has saved all the same.
bool isSaved(const QString& file, const std::vector<std::pair<std::string, std::string>>& entries) {
    try {
        IniText expected(settingsText(pathFromUtf8(file.toStdString())), settingsSection);
        const std::string found = expected.text();
        for (const auto& [name, value] : entries)
            expected.setValue(name, value);
        return expected.text() == found;
    } catch (const FileError&) {
        return false;
    }
}

} // namespace

bool saveSettings(const QString& file,
                  const std::vector<std::pair<std::string, std::string>>& entries) {
    QByteArrayList list;
    for (const auto& [name, value] : entries)
        list << bytesOf(name) << bytesOf(value);
    QSettings settings(file, settingsFormat());
    if (settings.status() != QSettings::NoError || !settings.isWritable())
        return false;
    const QString key = nextKey();
    settings.setValue(key, QVariant::fromValue(list));
    settings.sync();
    if (settings.status() == QSettings::NoError)
        return true;
    const bool saved = isSaved(file, entries);
    settings.remove(key); // or the next QSettings would write it
    return saved;
}

} // namespace torvik
