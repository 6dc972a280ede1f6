// SPDX-License-Identifier: MIT
#include "check/sense/sense.h"

#include <array>

namespace torvik::check {

void findHeightSense(float toolChange, float safe, float rapidDown, Findings& findings) {
    struct Height {
        const char* name;
        float height;
    };
    const std::array<Height, 3> fromTop{{{"Tool Change Height", toolChange},
                                         {"Safe Height for Rapids", safe},
                                         {"Rapid Down To", rapidDown}}};
    for (const Height& height : fromTop)
        if (height.height <= 0)
            findings.add(Kind::heightLow, 0, {height.name});
    for (std::size_t i = 1; i < fromTop.size(); ++i)
        if (fromTop[i - 1].height > 0 && fromTop[i - 1].height < fromTop[i].height)
            findings.add(Kind::heightOrder, 0, {fromTop[i - 1].name, fromTop[i].name});
}

} // namespace torvik::check
