// SPDX-License-Identifier: MIT
// The character sets of labels, by the numbers that a drawing selects them with: the national forms
// of ASCII (30 to 39) and, for the bytes above 127, HP Roman-8 or ISO 8859-1.
#pragma once

#include <string_view>

namespace torvik {

// Of the set of a drawing's own number for ISO 8859-1.
inline constexpr int latin1Set = 14;

// The letter of a byte; U+FFFD where the set has none.
char32_t letterOf(unsigned char byte, int set);

// Whether the text is UTF-8 with letters beyond ASCII, which newer programs write.
bool isUtf8Label(std::string_view text);

} // namespace torvik
