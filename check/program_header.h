// SPDX-License-Identifier: MIT
// What a program's header tells: the billet and the list of tools. The same lines stand in the text
// beside a diskette program, without a comment sign.
#pragma once

#include "check/statement.h"

#include <string_view>
#include <vector>

namespace torvik::check {

struct Billet {
    double length = unknown; // X, mm
    double width = unknown;  // Y
    double depth = unknown;  // Z
};

struct ListedTool {
    int number;
    double diameter; // mm
};

struct Header {
    static constexpr std::size_t mostListed = 16; // a longer list is cut off there

    Billet billet;
    std::vector<ListedTool> tools;
};

// A number above 0 at the start of the text, as the billet's sizes are read; unknown where there is
// none. What stands behind it is left in the text.
double takeNumber(std::string_view& text);

// Takes what one line of the header tells, its comment signs taken off.
void readHeaderLine(std::string_view text, Header& header);

// The header in the text beside a program.
Header readSideText(std::string_view text);

} // namespace torvik::check
