// SPDX-License-Identifier: MIT
// The settings file's form for QSettings: its keys and values, over the plain text of ini_text.h.
#pragma once

#include <QtCore/QSettings>

#include <optional>
#include <string>
#include <string_view>

namespace torvik {

// The registered format; the first call registers it.
QSettings::Format settingsFormat();

// An entry's key (the same for each case of its name), and its content with the name as spelled.
QString settingsKey(std::string_view name);
QVariant settingsEntry(std::string_view name, std::string_view value);
std::optional<std::string> settingsValue(const QVariant& entry);

// Whether the file that was read is one that must not be written: too large, or not read to its
// end.
bool isUnreadable(const QSettings& settings);

} // namespace torvik
