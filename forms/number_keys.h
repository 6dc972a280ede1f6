// SPDX-License-Identifier: MIT
// Which characters a numeric box takes.
#pragma once

#include <string>

namespace torvik {

// Whether a numeric box takes the character: digits, the point and control characters, and the
// minus sign where negative numbers make sense.
bool isNumberCharacter(char32_t character, bool minusAllowed);
// What the user is told about a character that a numeric box does not take.
std::string discardedHint(char32_t character, bool minusAllowed);

} // namespace torvik
