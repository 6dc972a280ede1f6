// SPDX-License-Identifier: MIT
#include "check/program_header.h"

#include "check/lines.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace torvik::check {
namespace {

constexpr std::array<std::string_view, Header::mostListed> ordinals{
    "First", "Second", "Third",    "Fourth",  "Fifth",      "Sixth",      "Seventh",   "Eighth",
    "Ninth", "Tenth",  "Eleventh", "Twelfth", "Thirteenth", "Fourteenth", "Fifteenth", "Sixteenth"};

bool takeStart(std::string_view& text, std::string_view start) {
    if (!text.starts_with(start))
        return false;
    text.remove_prefix(start.size());
    return true;
}

// "Tool - " or an ordinal and " tool - ".
bool takeToolLabel(std::string_view& text) {
    if (takeStart(text, "Tool - "))
        return true;
    const auto blank = std::min(text.find(' '), text.size());
    if (std::find(ordinals.begin(), ordinals.end(), text.substr(0, blank)) == ordinals.end())
        return false;
    text.remove_prefix(blank);
    return takeStart(text, " tool - ");
}

} // namespace

double takeNumber(std::string_view& text) {
    constexpr double most = 1e6;
    double number = unknown;
    const auto read =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (read.ec != std::errc() || !(number > 0 && number <= most))
        return unknown;
    text.remove_prefix(static_cast<std::size_t>(read.ptr - text.data()));
    return number;
}

void readHeaderLine(std::string_view text, Header& header) {
    if (takeStart(text, "Billet Length X - ")) {
        header.billet.length = takeNumber(text);
    } else if (takeStart(text, "Billet Width Y - ")) {
        header.billet.width = takeNumber(text);
    } else if (takeStart(text, "Billet Depth Z - ")) {
        header.billet.depth = takeNumber(text);
    } else if (takeToolLabel(text) && takeStart(text, "T")) {
        int number = 0;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
        if (read.ec != std::errc())
            return;
        text.remove_prefix(static_cast<std::size_t>(read.ptr - text.data()));
        takeStart(text, " ");
        header.tools.push_back({number, takeNumber(text)});
    }
}

Header readSideText(std::string_view text) {
    Header header;
    visitLines(text, [&](const Line& line) { readHeaderLine(line.text, header); });
    return header;
}

} // namespace torvik::check
