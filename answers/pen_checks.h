// SPDX-License-Identifier: MIT
// The checks of a pen page and the numbers that follow from others while the user types. They know
// the boxes only as texts that can or cannot be edited.
#pragma once

#include "answers/pen_rows.h"

#include <optional>
#include <string>

namespace torvik {

struct PenBoxes {
    PenTexts text;
    std::array<bool, penRowCount> enabled{};
};

// An edit of one box, from its first key until the box is left: one change, whatever the box held
// on the way.
struct PenEdit {
    std::size_t row;
    PenTexts before; // the texts when it began; its own row's is not looked at
};

// FinalDepth's work on the boxes after row `index` was edited or left, which asks for:
// - an edited cutting feed sets the vertical feed to a quarter of it (cutting form);
// - rows 5 and 6 are empty and closed where no final pass is possible; where one is (cutting form),
//   an empty row 5 becomes 0.15 mm and an empty row 6 half the cutting feed, and a final pass of 0
//   closes row 6.
// During an edit, rows that closed come back with the texts they had before it, and a row 6 that
// was empty or 0 before an edit of the cutting feed follows it.
void followFinalDepth(PenBoxes& boxes, std::size_t index, PenForm form, float feedFactor,
                      const std::optional<PenEdit>& edit);

// The first box that can be edited and holds nothing.
std::optional<std::size_t> firstEmptyRow(const PenBoxes& boxes);

enum class PenFault {
    zero,
    negative,
    notNumber, // as it stands: "6.5.20"
    tooLarge,  // for the field it is stored in
    aboveOther // than another row's number, which it may not be
};

// Why the page may not be left, and which box is to blame.
struct InputFault {
    std::size_t row;
    PenFault kind;
    std::size_t other = 0; // the row that aboveOther compares with

    bool operator==(const InputFault&) const = default;
};

// The first fault: a zero (or less) where none may stand, row by row, then depths that contradict
// each other. storedPeck is the group's own mark, which says whether the peck row counts.
std::optional<InputFault> inputFault(const PenBoxes& boxes, PenForm form, bool storedPeck);

} // namespace torvik
