// SPDX-License-Identifier: MIT
// From a settings group to the texts of a pen page and back. Texts are read leniently: the leading
// number, else 0. Feeds are shown divided by the feed factor and stored multiplied by it. A number
// that does not fit its field is refused before anything is stored.
#pragma once

#include "answers/pen_rows.h"
#include "tools/tool_list.h"

#include <optional>

namespace torvik {

// The number a box's text stands for, infinite where it is larger than any number that is kept.
double boxNumber(const std::string& text);

// The form's numbers of the group as its boxes show them. A zero shows as an empty box, but for
// the zeros that say something in a complete group: no dwell, and no final pass where one would be
// possible. Raises DivisionByZero for the feed factor 0.
PenTexts shownTexts(const Settings& settings, PenForm form, float feedFactor);

// Stores the form's texts (and the peck mark of a drilling form) and whether the group is complete
// then. A number that does not fit stores nothing, and its row is returned.
std::optional<std::size_t> storeTexts(const PenTexts& texts, bool peck, PenForm form,
                                      float feedFactor, const ToolList& tools, Settings& settings);

// Whether the group holds all that its form needs to be machined.
bool isCompleteGroup(const Settings& settings, PenForm form, const ToolList& tools);

} // namespace torvik
