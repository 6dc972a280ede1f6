// SPDX-License-Identifier: MIT
#include "manual/roff.h"

namespace torvik {

std::string roffText(std::string_view text) {
    std::string safe;
    bool startsLine = true;
    for (const char c : text) {
        if (startsLine && (c == '.' || c == '\''))
            safe += "\\&";
        startsLine = c == '\n';
        if (c == '\\')
            safe += "\\e";
        else if (c == '-')
            safe += "\\-";
        else if (c == '~')
            safe += "\\(ti";
        else
            safe += c;
    }
    return safe;
}

std::string roffBold(std::string_view text) {
    return "\\fB" + roffText(text) + "\\fR";
}

std::string roffItalic(std::string_view text) {
    return "\\fI" + roffText(text) + "\\fR";
}

} // namespace torvik
