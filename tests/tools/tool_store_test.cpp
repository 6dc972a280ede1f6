// SPDX-License-Identifier: MIT
#include "tests/tools/ini_registry.h"
#include "tools/tool_store.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

std::string inBrackets(const Tool& tool) {
    return "(" + std::to_string(tool.intNumber) + " " + tool.strType + " " +
           std::to_string(tool.sngDiameter) + " " + std::to_string(tool.sngReserved) + ")";
}

// A list, a registry, and the last error that was reported.
struct Workshop {
    explicit Workshop(std::string_view text = {})
        : registry("[Maskor]\n" + std::string(text)),
          logger({}, [this](const ErrorReport& report) { error = report.message(); }) {}

    IniRegistry registry;
    ToolList tools;
    std::string error;
    Logger logger;
};

TEST(ToolStore, LoadsWhatItCanAndReportsTheRest) {
    const struct {
        const char* name;
        std::string entries;
        int count;
        std::string tools;
        const char* error; // a part of the report; empty for none
    } cases[] = {
        {"no entries give an empty list", "", 0, "", ""},
        {"numbers are leading numbers, types are kept as they are",
         "ToolCount=1 tool\nTool01= 2.5x| End  mill | 3mm|x", 1,
         "(2  End  mill  3.000000 0.000000)", ""},
        {"a \"|\" in the type shifts the fields", "ToolCount=1\nTool01=4|Drill|2 lips|6.000|-2000",
         1, "(4 Drill 2.000000 6.000000)", ""},
        {"a record without separators stops the loading",
         "ToolCount=3\nTool01=1|Drill|5|0\nTool02=Drill\nTool03=3|Drill|5|0", 3,
         "(1 Drill 5.000000 0.000000)(0  0.000000 0.000000)", "ToolDataLoad (modHpgl):\nTool02: "},
        {"a record with two of the three separators keeps the fields before",
         "ToolCount=1\nTool01=7|Drill|5.000", 1, "(7 Drill 0.000000 0.000000)", "Tool01: "},
        {"a number outside 16 bits", "ToolCount=1\nTool01=32768|Drill|5|0", 1,
         "(0  0.000000 0.000000)", "Tool01: "},
        {"a count outside 16 bits", "ToolCount=32768\nTool01=1|Drill|5|0", 0, "",
         "ToolDataLoad (modHpgl):"},
    };
    for (const auto& row : cases) {
        Workshop shop(row.entries);
        shop.tools.gudtTools.append({9, "old", 1, 1});
        shop.tools.gintToolCount = 1;
        ToolDataLoad(shop.tools, shop.registry, shop.logger);
        EXPECT_EQ(shop.tools.gintToolCount, row.count) << row.name;
        std::string tools;
        for (const Tool& tool : shop.tools.gudtTools)
            tools += inBrackets(tool);
        EXPECT_EQ(tools, row.tools) << row.name;
        EXPECT_NE(shop.error.find(row.error), std::string::npos) << row.name << shop.error;
        EXPECT_EQ(shop.error.empty(), *row.error == '\0') << row.name << shop.error;
    }
}

TEST(ToolStore, SavesEveryToolAndLeavesTheRecordsAboveTheCount) {
    Workshop shop("Tool03=3|Reamer|8.000|0.000\n");
    shop.tools.gudtTools = {{7, "Slot drill", 6, Tool::newToolReserved}, {8, "a|b", 2.5F, 0.0625F}};
    shop.tools.gintToolCount = 2;
    ToolDataSave(shop.tools, shop.registry, shop.logger);
    EXPECT_EQ(shop.registry.text(),
              "[Maskor]\nTool03=3|Reamer|8.000|0.000\nToolCount=2\n"
              "Tool01=7|Slot drill|6.000|-2000.000\nTool02=8|a|b|2.500|0.063\n");
    EXPECT_EQ(shop.error, "");
}

TEST(ToolStore, FindsTheHundredthToolAndNoneWithZero) {
    Workshop shop;
    shop.tools.gintToolCount = 100;
    for (std::int16_t i = 1; i <= 100; ++i)
        shop.tools.gudtTools.append({std::min<std::int16_t>(i, 99), "Drill", 6, 0});
    ToolDataSave(shop.tools, shop.registry, shop.logger);
    EXPECT_EQ(shop.registry.strRegistryValueGet("Tool100", ""), "99|Drill|6.000|0.000");
    ToolList again;
    ToolDataLoad(again, shop.registry, shop.logger);
    EXPECT_EQ(intToolGetId(again, 99), 99) << "the first of two with a number";
    EXPECT_EQ(intToolGetId(again, 0), 0);
    EXPECT_EQ(shop.error, "");
}

TEST(ToolStore, RaisesForAPlaceThatTheLoadingDidNotReach) {
    Workshop shop("ToolCount=4\nTool01=1|Drill|5|0\nTool02=x\nTool04=4|End mill|6|0");
    ToolDataLoad(shop.tools, shop.registry, shop.logger);
    EXPECT_EQ(intToolGetId(shop.tools, 1), 1);
    EXPECT_THROW(intToolGetId(shop.tools, 4), SubscriptOutOfRange);
    EXPECT_THROW(toolAt(shop.tools, 3), SubscriptOutOfRange);
    ToolDataSave(shop.tools, shop.registry, shop.logger);
    EXPECT_NE(shop.error.find("ToolDataSave (modHpgl)"), std::string::npos) << shop.error;
    EXPECT_EQ(shop.registry.strRegistryValueGet("Tool04", ""), "4|End mill|6|0");
}

TEST(ToolStore, KeepsTheUsersTypesAsTyped) {
    Workshop shop;
    for (const char* type : {"T-slot, 6; \"fine\"", "a|b\\c", " V-Fr\xC3\xA4ser ", ";x", ""})
        shop.tools.gstrUserToolTypes.append(type);
    shop.tools.gintUserToolTypeCount = 5;
    ToolTypeUserSave(shop.tools, shop.registry, shop.logger);
    const IniRegistry saved(shop.registry.text());
    ToolList again;
    ToolTypeUserLoad(again, saved, shop.logger);
    EXPECT_EQ(again.gintUserToolTypeCount, 5);
    EXPECT_EQ(again.gstrUserToolTypes, shop.tools.gstrUserToolTypes);
    EXPECT_EQ(shop.error, "");

    shop.registry.RegistryValuePut("ToolTypes", "99999");
    ToolTypeUserLoad(again, shop.registry, shop.logger);
    EXPECT_EQ(again.gintUserToolTypeCount, 0);
    EXPECT_NE(shop.error.find("ToolTypeUserLoad (modHpgl)"), std::string::npos) << shop.error;
}

} // namespace
} // namespace torvik
