// SPDX-License-Identifier: MIT
#include "job/machined_groups.h"

#include "base/picture.h"

namespace torvik {

std::string groupText(const Pen& pen, std::int16_t radius) {
    if (radius == 0)
        return "the " + pen.strColour + " lines";
    return "the " + formatFixed(2.0 * pen.sngRadii[radius], 1) + " mm " + pen.strColour + " holes";
}

} // namespace torvik
