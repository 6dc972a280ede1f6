// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

TEST(TrimBlanks, TakesAwayNothingButBlanks) {
    EXPECT_EQ(trimBlanks("  a b  "), "a b");
    EXPECT_EQ(trimBlanks("   "), "");
    EXPECT_EQ(trimBlanks("\ta\xC2\xA0"), "\ta\xC2\xA0");
}

TEST(Latin1Line, HasOneByteForEachCodePoint) {
    const struct {
        const char* says;
        std::string_view utf8;
        const char* line;
    } rows[] = {
        {"letters of ISO 8859-1 stay", "M\xC3\xBCller \xC2\xA0\xC3\xBF", "M\xFCller \xA0\xFF"},
        {"a code point outside is one question mark", "\xC4\x80\xE2\x82\xAC\xF0\x9F\x98\x80",
         "???"},
        {"a line break is one blank, of whichever kind", "a\r\nb\nc\rd", "a b c d"},
        {"other control characters are blanks", "\t\x7F\xC2\x85.", "   ."},
        {"a NUL byte is a blank", std::string_view("a\0b", 3), "a b"},
        {"each broken byte is a question mark", "\xFF\x80.\xC3.", "??.?."},
        {"a letter cut short at the end is broken", "a\xE2\x82", "a??"},
        {"a line break in too many bytes is broken", "\xE0\x80\x8A", "???"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(latin1Line(row.utf8), row.line) << row.says;
}

} // namespace
} // namespace torvik
