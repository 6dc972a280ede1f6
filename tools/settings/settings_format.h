// SPDX-License-Identifier: MIT
// Saving entries of the settings file by QSettings, over the plain text of ini_text.h. QSettings
// has the lock and the saving all or nothing. It is never asked what the file holds: a save that
// failed would stay in its memory and be written later, over what others have saved meanwhile.
#pragma once

#include <QtCore/QString>

#include <string>
#include <utility>
#include <vector>

namespace torvik {

// Puts the entries into the file as it is at that moment. False where it is left as it was: it
// cannot be written, or nobody can tell what it holds.
bool saveSettings(const QString& file,
                  const std::vector<std::pair<std::string, std::string>>& entries);

} // namespace torvik
