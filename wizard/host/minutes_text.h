// SPDX-License-Identifier: MIT
// How long the machine takes, as it is shown: no finer than it is known.
#pragma once

#include <QCoreApplication>

#include <cmath>

namespace torvik {

// "about 12 min", "about 1 h 40 min", "less than 1 min".
inline QString minutesText(double minutes) {
    const auto tr = [](const char* text) {
        return QCoreApplication::translate("MinutesText", text);
    };
    if (minutes < 1)
        return tr("less than 1 min");
    const double step = minutes < 20 ? 1 : minutes < 60 ? 5 : 10;
    const auto whole = static_cast<qint64>(std::round(minutes / step) * step);
    if (whole < 60)
        return tr("about %1 min").arg(whole);
    if (whole % 60 == 0)
        return tr("about %1 h").arg(whole / 60);
    return tr("about %1 h %2 min").arg(whole / 60).arg(whole % 60);
}

} // namespace torvik
