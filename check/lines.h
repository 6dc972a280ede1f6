// SPDX-License-Identifier: MIT
// A text line by line.
#pragma once

#include <cstdint>
#include <string_view>

namespace torvik::check {

struct Line {
    std::uint32_t number;  // from 1
    std::string_view text; // without its end
    bool isEnded;          // by carriage return and line feed
};

// A line of a text; it may have its end still.
inline Line lineOf(std::uint32_t number, std::string_view text) {
    const bool hasFeed = text.ends_with('\n');
    if (hasFeed)
        text.remove_suffix(1);
    const bool isEnded = hasFeed && text.ends_with('\r');
    if (isEnded)
        text.remove_suffix(1);
    return {number, text, isEnded};
}

// Calls visit(line) for each line; what stands behind the last line feed is one, too.
template <typename Visit>
void visitLines(std::string_view text, Visit visit) {
    for (std::uint32_t number = 1; !text.empty(); ++number) {
        const auto feed = text.find('\n');
        const auto size = feed == text.npos ? text.size() : feed + 1;
        visit(lineOf(number, text.substr(0, size)));
        text.remove_prefix(size);
    }
}

// Looks at all of them: that is quicker than to stop at the first.
inline bool holdsControlCharacter(std::string_view text) {
    unsigned found = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        found |= static_cast<unsigned>(byte < 0x20) | static_cast<unsigned>(byte == 0x7F);
    }
    return found != 0;
}

} // namespace torvik::check
