// SPDX-License-Identifier: MIT
// The kinds of characters in a drawing's text.
#pragma once

#include "base/digits.h"

#include <string_view>

namespace torvik {

inline constexpr char escape = '\x1b';
inline constexpr std::string_view jobLineMark = "@PJL";

inline bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
inline char toCapital(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
// Blanks, commas and control characters but the escape.
inline bool isSeparator(char c) {
    return (static_cast<unsigned char>(c) <= ' ' && c != escape) || c == ',';
}

} // namespace torvik
