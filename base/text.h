// SPDX-License-Identifier: MIT
// Small work on texts that are UTF-8 in memory.
#pragma once

#include <string>
#include <string_view>

namespace torvik {

// Without the blanks (U+0020 only) at both ends.
std::string_view trimBlanks(std::string_view text);

inline char toSmall(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// With the small letters of ASCII in place of the capital ones.
std::string lowered(std::string_view text);

// Takes the first letter of a text that is not empty. A byte that belongs to none is taken alone,
// as U+FFFD.
char32_t takeLetter(std::string_view& utf8);

// A letter that draws nothing and takes no room: a line break, for one.
bool isControlLetter(char32_t letter);

// Adds a letter, below 0x110000.
void appendLetter(std::string& utf8, char32_t letter);

// The text in ISO 8859-1 on one line: "?" for each code point (or broken byte) outside it, one
// blank for a line break or any other control character.
std::string latin1Line(std::string_view utf8);

// The code points that latin1Line makes "?" of, each once, in UTF-8 with blanks
// between; U+FFFD for broken bytes.
std::string lettersOutsideLatin1(std::string_view utf8);

// A file's name without its folder: what stands after the last "\\" or "/", or after the last ":"
// where there is neither.
std::string_view fileNameOf(std::string_view path);

// The name with its last three characters (code points), whatever they are, replaced.
std::string replaceLastThree(std::string_view name, std::string_view replacement);

} // namespace torvik
