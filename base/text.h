// SPDX-License-Identifier: MIT
// Small work on texts that are UTF-8 in memory.
#pragma once

#include <string>
#include <string_view>

namespace torvik {

// Without the blanks (U+0020 only) at both ends.
std::string_view trimBlanks(std::string_view text);

// The text in ISO 8859-1 on one line: "?" for each code point (or broken byte) outside it, one
// blank for a line break or any other control character.
std::string latin1Line(std::string_view utf8);

} // namespace torvik
