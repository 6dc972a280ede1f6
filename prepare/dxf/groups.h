// SPDX-License-Identifier: MIT
// The pairs of lines that a DXF drawing is made of: a code that says what is meant, and its value.
#pragma once

#include <string_view>
#include <vector>

namespace torvik::dxf {

struct Group {
    int code = 0;
    std::string_view value; // without the line's end
};

// Codes that this program looks at by themselves; the others stand with what they mean.
inline constexpr int kindCode = 0;
inline constexpr int nameCode = 2;
inline constexpr int variableCode = 9;

struct GroupList {
    std::vector<Group> groups; // remarks left out, up to the drawing's end
    bool isWhole = false;      // the end is marked as such
};

// The bytes must outlive the list. Raises RunTimeError for the binary form, for drawings that are
// no DXF, and with the line where a code is no number.
GroupList readGroups(std::string_view bytes);

// Of blanks and tabs.
std::string_view withoutBlanks(std::string_view text);

} // namespace torvik::dxf
