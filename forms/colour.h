// SPDX-License-Identifier: MIT
// The colours of pens and depths as those of the painter.
#pragma once

#include <QColor>

#include <cstdint>

namespace torvik {

// From 0x00BBGGRR.
inline QColor colourOf(std::int32_t colour) {
    return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
}

} // namespace torvik
