// SPDX-License-Identifier: MIT
#include "tests/tools/ini_registry.h"
#include "tools/tool_edits.h"
#include "tools/tool_store.h"

#include <functional>
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

TEST(ToolStore, LoadsWhatItCanAndReportsTheRestOnce) {
    const struct {
        const char* name;
        std::string entries;
        std::string tools;
        const char* error; // a part of the report; empty for none
    } cases[] = {
        {"no entries give an empty list", "", "", ""},
        {"numbers are leading numbers, types are kept as they are",
         "ToolCount=1 tool\nTool01= 2.5x| End  mill | 3mm|x", "(2  End  mill  3.000000 0.000000)",
         ""},
        {"a \"|\" in the type shifts the fields", "ToolCount=1\nTool01=4|Drill|2 lips|6.000|-2000",
         "(4 Drill 2.000000 6.000000)", ""},
        {"a record that cannot be read is no tool, and the others are",
         "ToolCount=4\nTool01=2|Drill|5\nTool02=32768|Drill|5|0\nTool04=3|Drill|5|0",
         "[2|Drill|5][32768|Drill|5|0][](3 Drill 5.000000 0.000000)",
         "ToolDataLoad (modHpgl):\nTool01: the tool's record is missing, too long, or lacks one of "
         "its three \"|\"; 3 tools in all cannot be read"},
        {"a record that is too long", "ToolCount=1\nTool01=1|" + std::string(70, 'x') + "|5|-2000",
         "[1|" + std::string(70, 'x') + "|5|-2000]", "Tool01: "},
        {"a count below 0", "ToolCount=-3\nTool02=2|Drill|5|0", "[](2 Drill 5.000000 0.000000)",
         "ToolCount is \"-3\", but 2 entries are stored; these are used. Tool01: "},
        {"a count that no list has", "ToolCount=99999\nTool01=1|Drill|5|0",
         "(1 Drill 5.000000 0.000000)", "ToolCount is \"99999\", but 1 entries"},
        {"a count far behind the last tool", "ToolCount=22\nTool01=1|Drill|5|0",
         "(1 Drill 5.000000 0.000000)", "ToolCount is \"22\""},
    };
    for (const auto& row : cases) {
        Workshop shop(row.entries);
        shop.tools.gudtTools.append({9, "old", 1, 1});
        ToolDataLoad(shop.tools, shop.registry, shop.logger);
        EXPECT_EQ(shop.tools.gintToolCount, shop.tools.gudtTools.count()) << row.name;
        std::string tools;
        for (const Tool& tool : shop.tools.gudtTools)
            tools += tool.strUnreadable ? "[" + *tool.strUnreadable + "]" : inBrackets(tool);
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

TEST(ToolStore, LeavesARecordThatCannotBeReadAndMovesItWithItsPlace) {
    Workshop shop("ToolCount=3\nTool01=1|Drill|5|0\nTool02 = 2||0.000\nTool03=3|Drill|6|0\n");
    ToolDataLoad(shop.tools, shop.registry, shop.logger);
    shop.error.clear();
    EXPECT_EQ(intToolGetId(shop.tools, 2), 0);
    EXPECT_FALSE(isInList(shop.tools, 2));
    EXPECT_THROW(toolAt(shop.tools, 2), InvalidCall);
    ToolDataSave(shop.tools, shop.registry, shop.logger);
    EXPECT_NE(shop.registry.text().find("Tool02 = 2||0.000\nTool03=3|"), std::string::npos);
    deleteTool(shop.tools, 1);
    ToolDataSave(shop.tools, shop.registry, shop.logger);
    EXPECT_NE(shop.registry.text().find("ToolCount=2\nTool01=2||0.000\nTool02=3|Drill|6.000"),
              std::string::npos);
    EXPECT_EQ(shop.error, "");
}

// Our copy loads tools 1 to 3, changes them, and saves over what another copy has stored.
TEST(ToolStore, TakesOverWhatAnotherCopyHasStored) {
    const auto listOf = [](std::vector<const char*> records) {
        std::string text = "[Maskor]\nToolCount=" + std::to_string(records.size()) + "\n";
        for (std::size_t i = 0; i < records.size(); ++i)
            text += "Tool0" + std::to_string(i + 1) + "=" + records[i] + "\n";
        return text;
    };
    constexpr auto one = "1|Drill|1.000|0.000";
    constexpr auto two = "2|Drill|2.000|0.000";
    constexpr auto three = "3|Drill|3.000|0.000";
    constexpr auto big = "2|Drill|9.000|0.000";
    constexpr auto four = "4|Reamer|4.000|0.000";
    const auto nothing = [](ToolList&) {};
    const auto change2 = [](ToolList& tools) { tools.gudtTools[2].sngDiameter = 8; };
    const struct {
        const char* name;
        std::vector<const char*> loaded;
        std::function<void(ToolList&)> change;
        std::vector<const char*> theirs, saved;
        std::vector<std::int16_t> overruled;
    } cases[] = {
        {"a new tool comes last, ours stays",
         {one, two, three},
         change2,
         {one, two, three, four},
         {one, "2|Drill|8.000|0.000", three, four},
         {}},
        {"a changed tool", {one, two, three}, nothing, {one, big, three}, {one, big, three}, {}},
        {"a tool that both changed stays as ours",
         {one, two, three},
         change2,
         {one, big, three},
         {one, "2|Drill|8.000|0.000", three},
         {2}},
        {"a tool that we deleted and they changed stays deleted",
         {one, two, three},
         [](ToolList& tools) { deleteTool(tools, 2); },
         {one, big, three},
         {one, three, three}, // the record above the count is left
         {2}},
        {"a tool that they deleted stays",
         {one, two, three},
         nothing,
         {one, three},
         {one, two, three},
         {}},
        {"a record that they mended",
         {one, "2|", three},
         nothing,
         {one, four, three},
         {one, four, three},
         {}},
        {"what we never read", {}, nothing, {one, "2|", three}, {one, "2|", three}, {}},
    };
    for (const auto& row : cases) {
        Workshop shop;
        ToolDataLoad(shop.tools, IniRegistry(listOf(row.loaded)), shop.logger);
        row.change(shop.tools);
        IniRegistry shared(listOf(row.theirs));
        EXPECT_EQ(ToolDataSave(shop.tools, shared, shop.logger), row.overruled) << row.name;
        for (std::size_t i = 0; i < row.saved.size(); ++i)
            EXPECT_EQ(shared.wholeText("Tool0" + std::to_string(i + 1)), row.saved[i]) << row.name;
    }
}

TEST(ToolStore, KeepsForTheSessionWhatCannotBeSaved) {
    Workshop shop("ToolTypes=1\nToolType01=old\n");
    shop.registry.canStore = false;
    ToolTypeUserLoad(shop.tools, shop.registry, shop.logger);
    addUserType(shop.tools, "new");
    ToolTypeUserSave(shop.tools, shop.registry, shop.logger);
    ToolDataSave(shop.tools, shop.registry, shop.logger);
    EXPECT_TRUE(shop.tools.typesUnsaved && shop.tools.toolsUnsaved);
    ToolTypeUserLoad(shop.tools, shop.registry, shop.logger);
    EXPECT_EQ(shop.tools.gintUserToolTypeCount, 2);
    shop.registry.canStore = true;
    EXPECT_TRUE(shop.registry.RegistryValuePut("Other", "1"));
    EXPECT_EQ(shop.registry.text(), "[Maskor]\nToolTypes=1\nToolType01=old\nOther=1\n");
    ToolTypeUserSave(shop.tools, shop.registry, shop.logger);
    EXPECT_FALSE(shop.tools.typesUnsaved);
    EXPECT_EQ(shop.registry.wholeText("ToolType02"), "new");
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
}

} // namespace
} // namespace torvik
