// SPDX-License-Identifier: MIT
#include "wizard/output/own_settings.h"

namespace torvik {

std::unique_ptr<QSettings> ownSettings() {
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                       QStringLiteral("Torvik"), QStringLiteral("Torvik"));
}

} // namespace torvik
