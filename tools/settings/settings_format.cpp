// SPDX-License-Identifier: MIT
#include "tools/settings/settings_format.h"

#include "tools/ini_text.h"
#include "tools/settings_file_reader.h"

#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>

namespace torvik {
namespace {

constexpr auto maxFileBytes = static_cast<qint64>(maxSettingsBytes);
constexpr std::string_view section = settingsSection;
// Keys beside the entries' own; no entry's name holds a line break.
const QString wholeText = QStringLiteral("\ntext");
const QString unreadable = QStringLiteral("\nunreadable");

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QByteArray bytesOf(std::string_view text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

// Answers true in any case: after a false one QSettings would write a file that lacks what was not
// read.
bool readSettings(QIODevice& device, QSettings::SettingsMap& map) {
    const QByteArray text = device.read(maxFileBytes + 1);
    if (text.size() > maxFileBytes || text.size() < device.size()) {
        map.insert(unreadable, true);
        return true;
    }
    const IniText ini(viewOf(text), section);
    for (const auto& [name, value] : ini.values())
        map.insert(settingsKey(name), settingsEntry(name, value));
    map.insert(wholeText, text);
    return true;
}

// QSettings sees another program's save by the file's size and time alone. So that no two saves
// have the same time, a save in the same millisecond as the one before is dated a little later.
bool setDistinctTime(QFileDevice& file) {
    const qint64 before = QFileInfo(file.fileName()).lastModified().toMSecsSinceEpoch();
    if (!file.flush())
        return false;
    if (QDateTime::currentMSecsSinceEpoch() <= before)
        file.setFileTime(QDateTime::fromMSecsSinceEpoch(before + 1),
                         QFileDevice::FileModificationTime);
    return true;
}

bool writeSettings(QIODevice& device, const QSettings::SettingsMap& map) {
    if (map.contains(unreadable))
        return false;
    IniText ini(viewOf(map.value(wholeText).toByteArray()), section);
    for (const QVariant& entry : map)
        if (const auto nameAndValue = entry.value<QByteArrayList>(); nameAndValue.size() == 2)
            ini.setValue(viewOf(nameAndValue[0]), viewOf(nameAndValue[1]));
    const QByteArray text = bytesOf(ini.text());
    auto* file = qobject_cast<QFileDevice*>(&device);
    return device.write(text) == text.size() && (file == nullptr || setDistinctTime(*file));
}

} // namespace

QSettings::Format settingsFormat() {
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("ini"), readSettings, writeSettings);
    return format;
}

QString settingsKey(std::string_view name) {
    // Byte by byte, so that a name in a broken encoding has a key of its own too.
    return QString::fromLatin1(bytesOf(name).toLower());
}

QVariant settingsEntry(std::string_view name, std::string_view value) {
    return QVariant::fromValue(QByteArrayList{bytesOf(name), bytesOf(value)});
}

std::optional<std::string> settingsValue(const QVariant& entry) {
    const auto nameAndValue = entry.value<QByteArrayList>();
    if (nameAndValue.size() != 2)
        return std::nullopt;
    return nameAndValue[1].toStdString();
}

bool isUnreadable(const QSettings& settings) {
    return settings.contains(unreadable);
}

} // namespace torvik
