// SPDX-License-Identifier: MIT
// The text form of answers that are not finished: a line with the wizard's step, the pen and the
// hole size on show and a count of boxes, then the text of each of these boxes in a line of its
// own, then the answers as saved_text.h has them. Refuses, with the line, whatever is not this form
// or does not fit the drawing.
#pragma once

#include "answers/saved_text.h"

namespace torvik {

// Where the user stopped.
struct WizardPlace {
    std::int16_t step = 2;   // 2 to 6
    std::int16_t pen = 0;    // 1 to 8, 0 before the first
    std::int16_t radius = 0; // hole size, 0 for the pen as a whole

    bool operator==(const WizardPlace&) const = default;
};

struct UnfinishedText {
    WizardPlace place;
    std::vector<std::string> boxes; // of the page on show, as they were typed
    std::string answers;            // not looked at yet
};

// The parts of the text, whosever answers they are. Raises FileError.
UnfinishedText parseUnfinished(std::string_view text, std::string_view fileName);

// Raises InvalidCall for what parseUnfinished would refuse.
std::string formatUnfinished(UnfinishedText unfinished);

} // namespace torvik
