// SPDX-License-Identifier: MIT
// The desktop program's own settings (recent drawings, last target). What the workshop's
// programs share is in the registry instead.
#pragma once

#include <QSettings>

#include <memory>

namespace torvik {

std::unique_ptr<QSettings> ownSettings();

} // namespace torvik
