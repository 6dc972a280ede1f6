// SPDX-License-Identifier: MIT
// A text line by line.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace torvik::check {

struct Line {
    std::uint32_t number;  // from 1
    std::string_view text; // without its end
    bool isEnded;          // by carriage return and line feed
};

// Calls visit(line) for each line; what stands behind the last line feed is one, too.
template <typename Visit>
void visitLines(std::string_view text, Visit visit) {
    for (std::uint32_t number = 1; !text.empty(); ++number) {
        const auto feed = text.find('\n');
        std::string_view line = text.substr(0, feed);
        text.remove_prefix(feed == text.npos ? text.size() : feed + 1);
        const bool isEnded = feed != text.npos && line.ends_with('\r');
        if (isEnded)
            line.remove_suffix(1);
        visit(Line{number, line, isEnded});
    }
}

inline bool holdsControlCharacter(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte == 0x7F;
    });
}

} // namespace torvik::check
