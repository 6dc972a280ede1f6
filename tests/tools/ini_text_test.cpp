// SPDX-License-Identifier: MIT
#include "tools/ini_text.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

using namespace std::string_literals;

TEST(IniText, ReadsTheValueToTheEndOfItsLine) {
    const struct {
        const char* name;
        std::string text;
        std::string expected; // the value of Name
    } cases[] = {
        {"blanks and tabs round name and value", "[Maskor]\n \tName \t=\t a b \t\n", "a b"},
        {"lines ending in CR", "[Maskor]\rName=a\rOther=b", "a"},
        {"a byte order mark", "\xEF\xBB\xBF[Maskor]\nName=a", "a"},
        {"comma, semicolon, hash and equals sign", "[Maskor]\nName=a,b;c#d=e ;f", "a,b;c#d=e ;f"},
        {"name and section in another case", "[ MASKOR ]\nnAME=a", "a"},
        {"the last of two alike", "[Maskor]\nName=a\nNAME=b", "b"},
        {"a value in quotes", "[Maskor]\nName=\" a\\\\\\\" \"", R"( a\" )"},
        {"a last quote that is escaped", "[Maskor]\nName=\"a\\\"", R"("a\")"},
        {"a NUL and another control character", "[Maskor]\nName=a\0b\x1B"s + "c", "a b c"},
        {"a comment is no entry", "[Maskor]\n;Name=a\n# Name=a", "missing"},
        {"another section's entry", "[Maskor]\n[Maskor 2]\nName=a\n[\nName=a", "missing"},
    };
    for (const auto& [name, text, expected] : cases) {
        const IniText ini(text, "Maskor");
        const auto entry = ini.values().find("Name");
        EXPECT_EQ(entry == ini.values().end() ? "missing" : entry->second, expected) << name;
        EXPECT_EQ(ini.text(), text) << name;
    }
}

TEST(IniText, KeepsEveryValueThroughWritingAndReading) {
    for (const std::string& value :
         {""s, ";a"s, "[Maskor]"s, "="s, R"("")"s, R"("a")"s, R"(a")"s, R"(a\)"s, R"("\)"s,
          R"("a\")"s, " a"s, "a "s, "\ta\t"s, R"( \ )"s, "\xFF broken"s}) {
        IniText ini("", "Maskor");
        ini.setValue("PLT File Path", "first");
        ini.setValue("PLT File Path", value);
        ini.setValue("Next", "1");
        const IniText again(ini.text(), "Maskor");
        EXPECT_EQ(again.values().at("PLT File Path"), value) << ini.text();
        EXPECT_EQ(again.values().size(), 2u) << ini.text();
    }
}

TEST(IniText, WritesPlainLinesAndLeavesTheRestOfTheFileAsItStands) {
    IniText ini("\xEF\xBB\xBF; ours\r\n[Maskor]\r\n# mills\r\n tool01 = 1 \r\nKept =  x\r\n\r\n"
                "[Other]\r\nTool01=z",
                "Maskor");
    ini.setValue("Tool01", R"(1|"Slot" \ drill|6.000)");
    ini.setValue("Kept", "x");
    ini.setValue("Edge", R"( a\")");
    ini.setValue("Lines", "a\r\nb\nc");
    for (const char* unfit : {"", "a=b", "[a", ";a", "#a", " a", "a\nb"})
        ini.setValue(unfit, "4");
    EXPECT_EQ(ini.text(), "\xEF\xBB\xBF; ours\r\n[Maskor]\r\n# mills\r\n"
                          "tool01=1|\"Slot\" \\ drill|6.000\r\nKept =  x\r\n"
                          "Edge=\" a\\\\\\\"\"\r\nLines=a b c\r\n\r\n[Other]\r\nTool01=z");

    IniText other("[Other]\nTool01=z", "Maskor");
    other.setValue("Tool01", "2");
    EXPECT_EQ(other.text(), "[Other]\nTool01=z\n\n[Maskor]\nTool01=2\n");
}

} // namespace
} // namespace torvik
