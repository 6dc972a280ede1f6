// SPDX-License-Identifier: MIT
#include "answers/saved_text.h"
#include "base/errors.h"

#include <gtest/gtest.h>
#include <limits>
#include <sstream>

namespace torvik {
namespace {

// A pen of lines, and a pen of two circle sizes.
SavedAnswers shape() {
    SavedAnswers answers;
    answers.pens.resize(2);
    answers.pens[0].number = 2;
    answers.pens[1].number = 5;
    answers.pens[1].blnCircles = true;
    answers.pens[1].holes.resize(2);
    return answers;
}

std::vector<std::string> goodLines() {
    std::istringstream text(R"(0123456789abcdef0123456789abcdef
"1 May"
"Anna ""Ace"" B"
""
"8b, left"
"Gear"
"Foam"
"100"
"70"
"5"
50,0.5,-2,7,60
2
3,1200,300,100.25,4,2,#FALSE#,#FALSE#,#TRUE#,0,150,0.2
5
0,0,0,0,0,0,#TRUE#,#TRUE#,#FALSE#,2,0,0
6,2500,200,8,0,0.5,#FALSE#
-7,2000,160,8,3,0.25,#TRUE#
)");
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    for (const char* entry : {"5", "2", "0", "0", "-1", "9", "0", "0"}) // from line 18
        lines.emplace_back(entry);
    return lines;
}

std::string joined(const std::vector<std::string>& lines, const char* lineEnd = "\r\n") {
    std::string text;
    for (const std::string& line : lines)
        text += line + lineEnd;
    return text;
}

SavedAnswers parsed(const std::string& text) {
    return parseAnswers(text, shape(), "gear.plx");
}

TEST(SavedText, ReadsOtherFormsOfTheSame) {
    const std::string good = joined(goodLines());
    std::vector<std::string> spaced = goodLines();
    spaced[10] = " 5e1 ,\t.5,-2.0,7 , 60 ";
    const struct {
        const char* says;
        std::string text;
    } rows[] = {
        {"lines end at LF", joined(goodLines(), "\n")},
        {"the last line has no end", good.substr(0, good.size() - 2)},
        {"blank lines follow", good + "\r\n \t\n\n"},
        {"blanks stand around numbers, which are written in another way", joined(spaced)},
    };
    for (const auto& row : rows)
        EXPECT_EQ(formatAnswers(parsed(row.text)), good) << row.says;
}

TEST(SavedText, AnyTextAndAnySingleReadsBack) {
    using Limits = std::numeric_limits<float>;
    SavedAnswers answers = shape();
    answers.digest = "d";
    answers.header = {"\"",    "a\r\nb\nc\r", ",\"\",", "  blanks  ", std::string("\0\x01", 2),
                      "Größe", "#TRUE#",      "\n",     "\"\r\n\""};
    for (const float single :
         {Limits::max(), Limits::denorm_min(), -Limits::min(), 0.1F, 16777217.0F, 8388609.5F}) {
        answers.sngSafeHeight = single;
        const SavedAnswers again = parsed(formatAnswers(answers));
        EXPECT_EQ(again.sngSafeHeight, single);
        EXPECT_EQ(again.header, answers.header);
    }
}

TEST(SavedText, NamesTheLineOfADamage) {
    const struct {
        const char* says;
        std::size_t line; // to be replaced
        const char* by;
        long named;
        const char* cause;
    } rows[] = {
        {"a text without quotes", 3, "Anna", 3, "the designer does not stand in double quotes"},
        {"the last text is not closed", 10, "\"5", 10, "no closing quote"},
        {"more after a text", 7, R"("Foam" x)", 7, "goes on: \"x\""},
        {"a number too few", 11, "50,0.5,-2,7", 11, "before the feed units factor"},
        {"a number too many", 11, "50,0.5,-2,7,60,1", 11, "goes on: \",1\""},
        {"a feed factor of neither unit", 11, "50,0.5,-2,7,2", 11, "neither 1 nor 60"},
        {"no number", 11, "50,0.5mm,-2,7,60", 11, "is no number: \"0.5mm\""},
        {"a pen that is not the drawing's", 12, "3", 12, "is 3, in the drawing it is 2"},
        {"a tool number beyond 16 bits", 13, "32768,0,0,0,0,0,#FALSE#,#FALSE#,#FALSE#,0,0,0", 13,
         "no whole number"},
        {"a flag that is none", 13, "3,0,0,0,0,0,TRUE,#FALSE#,#FALSE#,0,0,0", 13, "the drill flag"},
        {"another count of sizes", 15, "0,0,0,0,0,0,#TRUE#,#TRUE#,#FALSE#,1,0,0", 15, "it is 2"},
        {"an order entry with a fraction", 19, "1.5", 19, "no whole number"},
        {"more than the order", 25, "0\r\n\r\n\"more\"", 27, R"(goes on: ""more"")"},
    };
    for (const auto& row : rows) {
        std::vector<std::string> lines = goodLines();
        lines[row.line - 1] = row.by;
        try {
            parsed(joined(lines));
            ADD_FAILURE() << row.says << ": read without an error";
        } catch (const FileError& error) {
            EXPECT_EQ(error.line(), row.named) << row.says << ": " << error.what();
            EXPECT_NE(std::string(error.what()).find(row.cause), std::string::npos)
                << row.says << ": " << error.what();
        }
    }
}

TEST(SavedText, NoBeginningOfAFileReads) {
    // Up to the last order entry, which may lack its line end.
    const std::string good = joined(goodLines());
    for (std::size_t size = 0; size + 2 < good.size(); ++size)
        EXPECT_THROW(parsed(good.substr(0, size)), FileError) << size;
}

TEST(SavedText, WritesNothingThatItWouldNotRead) {
    SavedAnswers answers = shape();
    answers.digest = "d";
    answers.sngSafeHeight = std::numeric_limits<float>::quiet_NaN();
    EXPECT_THROW(formatAnswers(answers), Overflow);
    answers.sngSafeHeight = 0;
    answers.header[3].assign(maxSavedBytes, 'x');
    EXPECT_THROW(formatAnswers(answers), InvalidCall);
}

} // namespace
} // namespace torvik
