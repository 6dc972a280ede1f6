// SPDX-License-Identifier: MIT
// What the texts of a DXF drawing hold beside letters: signs under codes, and in texts of several
// lines their breaks and formats. Letters stay; formats are passed over.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace torvik::dxf {

// A text of one line: "%%c" is the sign for diameters, "%%d" for degrees, "%%p" plus and minus,
// "%%nnn" and "\U+nnnn" letters by their numbers. UTF-8 on both sides.
std::string plainText(std::string_view utf8);

// A text of several lines, each without formats.
std::vector<std::string> plainLines(std::string_view utf8);

} // namespace torvik::dxf
