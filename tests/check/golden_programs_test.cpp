// SPDX-License-Identifier: MIT
// The programs of the golden cases, as they are and with one line changed.
#include "base/files.h"
#include "tests/check/good_program.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>

namespace torvik::check {
namespace {

namespace fs = std::filesystem;

std::string bytesOf(const std::string& name) {
    const fs::path path = fs::path(TORVIK_GOLDEN) / name;
    return fs::exists(path) ? readWholeFile(path, 1 << 20) : std::string();
}

Report checkGolden(const std::string& name, const std::string& text) {
    return checkProgram(text, bytesOf(name + ".txt"));
}

TEST(GoldenPrograms, OnlyWhatIsTrueIsFound) {
    // The safe height is 0; an arc bulges out of the billet; a bracket in the part's name.
    const std::map<std::string, std::vector<std::string>> expected{
        {"all_left_out/expected.iso", {"rapid-down 5"}},
        {"all_left_out/expected.mxc", {"rapid-down 2"}},
        {"all_left_out/expected.wincam", {"rapid-down 5"}},
        {"all_left_out/expected.winnc", {"rapid-down 4"}},
        {"cut_job/expected.iso", {"outside 25"}},
        {"cut_job/expected.mxc", {"outside 22"}},
        {"cut_job/expected.wincam", {"outside 15"}},
        {"cut_job/expected.winnc", {"outside 13"}},
        {"mixed_job/expected.iso", {"comment 5", "outside 35"}},
        {"mixed_job/expected.mxc", {"outside 30"}},
        {"mixed_job/expected.wincam", {"outside 28"}},
        {"mixed_job/expected.winnc", {"outside 27"}},
    };
    int programs = 0;
    for (const fs::directory_entry& folder : fs::directory_iterator(TORVIK_GOLDEN)) {
        for (const char* end : {"iso", "mxc", "wincam", "winnc"}) {
            const std::string name =
                folder.path().filename().string() + "/expected." + std::string(end);
            const std::string text = bytesOf(name);
            if (text.empty())
                continue;
            ++programs;
            const auto known = expected.find(name);
            EXPECT_EQ(shown(checkGolden(name, text), Level::look),
                      known == expected.end() ? std::vector<std::string>{} : known->second)
                << name;
        }
    }
    EXPECT_EQ(programs, 17);
}

struct Change {
    const char* name;
    const char* program; // of the cut job or the drilled job
    const char* text;    // stands in it once
    const char* with;
    const char* found; // besides what is found in the program as it is
};

const Change changes[]{
    {"a pause is missing", "cut_job/expected.wincam", "N27 M1", "N27 M5", "tool-stop 29"},
    {"an offset is another tool's", "cut_job/expected.wincam", "D23", "D24", "tool-offset 29"},
    {"the zero shift is another one", "cut_job/expected.wincam", "N3 G58", "N3 G59", "opening 4"},
    {"the number has a zero before it", "cut_job/expected.wincam", "%MPF12", "%MPF012",
     "opening 1"},
    {"an escape is missing", "cut_job/expected.winnc", "\x1B&HE", "&HE", "opening 1"},
    {"the number has two digits", "cut_job/expected.winnc", ":0012", ":12", "opening 2"},
    {"an offset is another tool's", "cut_job/expected.winnc", "H12", "H3", "tool-offset 28"},
    {"a feed has decimals", "cut_job/expected.winnc", "Z-2.50 F150", "Z-2.50 F150.00", "number 14"},
    {"a dwell is in milliseconds", "drilled_job/expected.winnc", "N11 G4 X0.75", "N11 G4 X750.00",
     "dwell-odd 13"},
    {"a dwell has the other letter", "drilled_job/expected.mxc", "N7 G4 P0.75", "N7 G4 X0.75",
     "statement 13"},
    {"a stop that the control does not have", "cut_job/expected.mxc", "N22 G0 Z50.00",
     "N22 G0 Z50.00 M5", "statement 34"},
    {"a tool is not in the list", "cut_job/expected.mxc", "N23 T12", "N23 T4", "tool-unlisted 35"},
};

TEST(GoldenPrograms, EachControlHasItsOwnWay) {
    for (const Change& change : changes) {
        SCOPED_TRACE(std::string(change.program) + ": " + change.name);
        std::string text = bytesOf(change.program);
        const auto at = text.find(change.text);
        ASSERT_NE(at, text.npos);
        text.replace(at, std::string(change.text).size(), change.with);
        const auto found = shown(checkGolden(change.program, text), Level::look);
        EXPECT_NE(std::find(found.begin(), found.end(), change.found), found.end())
            << testing::PrintToString(found);
    }
}

TEST(GoldenPrograms, TheControlIsKnownWithoutTheFirstLine) {
    for (const char* end : {"iso", "mxc", "wincam", "winnc"}) {
        const std::string text = bytesOf(std::string("drilled_job/expected.") + end);
        const Target* const whole = checkProgram(text).target;
        ASSERT_NE(whole, nullptr) << end;
        EXPECT_EQ(checkProgram(text.substr(text.find('\n') + 1)).target, whole) << end;
    }
    EXPECT_EQ(checkProgram("A shopping list\r\n").target, nullptr);
}

} // namespace
} // namespace torvik::check
