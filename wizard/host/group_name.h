// SPDX-License-Identifier: MIT
// What a group is called inside a sentence of a message.
#pragma once

#include "base/picture.h"
#include "job/records.h"
#include "languages/shown_text.h"

#include <QCoreApplication>

#include <cstdint>

namespace torvik {

// "the Red lines", "the 6.0 mm Blue holes"; radius is the subscript of the hole size, 0 for lines.
inline QString groupName(const Pen& pen, std::int16_t radius) {
    const QString colour = shownText(pen.strColour);
    if (radius == 0)
        return QCoreApplication::translate("GroupName", "the %1 lines").arg(colour);
    const QString size = QString::fromStdString(formatFixed(2.0 * pen.sngRadii[radius], 1));
    return QCoreApplication::translate("GroupName", "the %1 mm %2 holes").arg(size, colour);
}

} // namespace torvik
