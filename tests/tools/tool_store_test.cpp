// SPDX-License-Identifier: MIT
#include "tests/tools/ini_registry.h"
#include "tools/tool_edits.h"
#include "tools/tool_store.h"

#include <functional>
#include <gtest/gtest.h>
#include <sstream>

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
         "ToolCount is \"-3\", which cannot be right; the list is used up to its last entry, "
         "number 2. Tool01: "},
        {"a count that no list has", "ToolCount=99999\nTool01=1|Drill|5|0",
         "(1 Drill 5.000000 0.000000)", "ToolCount is \"99999\""},
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
    Workshop shop("ToolCount=100\nTool02=7|Reamer|3|0\nTool100=99|Drill|6|0\n");
    ToolDataLoad(shop.tools, shop.registry, shop.logger);
    EXPECT_EQ(intToolGetId(shop.tools, 99), 100);
    EXPECT_EQ(intToolGetId(shop.tools, 7), 2);
    EXPECT_EQ(intToolGetId(shop.tools, 0), 0);
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

// "1/5 x" stands for a drill of 5 mm with the number 1, and a record that cannot be read.
std::string registryText(const std::string& tools) {
    std::istringstream words(tools);
    std::string text;
    int count = 0;
    for (std::string word; words >> word;) {
        const auto slash = word.find('/');
        text += "Tool0" + std::to_string(++count) + "=" +
                (word == "x"
                     ? word
                     : word.substr(0, slash) + "|Drill|" + word.substr(slash + 1) + ".000|0.000") +
                "\n";
    }
    return "[Maskor]\n" + text + "ToolCount=" + std::to_string(count) + "\n";
}

TEST(ToolStore, TakesOverWhatAnotherCopyHasStored) {
    const auto none = [](ToolList&) {};
    const auto change2 = [](ToolList& tools) { tools.gudtTools[2].sngDiameter = 8; };
    const auto delete2 = [](ToolList& tools) { deleteTool(tools, 2); };
    const struct {
        const char* name;
        const char* loaded;
        std::function<void(ToolList&)> change;
        const char* theirs;
        const char* saved;
        std::vector<std::int16_t> overruled;
    } cases[] = {
        {"a new tool comes last", "1/1 2/2 3/3", change2, "1/1 2/2 3/3 4/4", "1/1 2/8 3/3 4/4", {}},
        {"a changed tool", "1/1 2/2 3/3", none, "1/1 2/9 3/3", "1/1 2/9 3/3", {}},
        {"both changed it", "1/1 2/2 3/3", change2, "1/1 2/9 3/3", "1/1 2/8 3/3", {2}},
        {"deleted here, changed there", "1/1 2/2 3/3", delete2, "1/1 2/9 3/3", "1/1 3/3", {2}},
        {"deleted there", "1/1 2/2 3/3", none, "1/1 3/3", "1/1 3/3", {}},
        {"deleted there, changed here", "1/1 2/2 3/3", change2, "1/1 3/3", "1/1 2/8 3/3", {2}},
        {"a record ruined there", "1/1 2/2", none, "1/1 x", "1/1 2/2 x", {}},
        {"a record mended there", "1/1 x 3/3", none, "1/1 4/4 3/3", "1/1 4/4 3/3", {}},
        {"never read here", "", none, "1/1 x 3/3", "1/1 x 3/3", {}},
    };
    for (const auto& row : cases) {
        Workshop shop;
        ToolDataLoad(shop.tools, IniRegistry(registryText(row.loaded)), shop.logger);
        row.change(shop.tools);
        IniRegistry shared(registryText(row.theirs));
        EXPECT_EQ(ToolDataSave(shop.tools, shared, shop.logger).overruled, row.overruled)
            << row.name;
        const IniRegistry expected(registryText(row.saved));
        for (const char* name : {"ToolCount", "Tool01", "Tool02", "Tool03", "Tool04"})
            EXPECT_TRUE(shared.wholeText(name) == expected.wholeText(name) ||
                        !expected.wholeText(name))
                << row.name << ": " << shared.text();
    }
}

TEST(ToolStore, DeletesNothingWhereTheCountIsGone) {
    Workshop shop("ToolCount=1\nTool01=2|Drill|3|0\n");
    ToolDataLoad(shop.tools, shop.registry, shop.logger);
    IniRegistry emptied("[Maskor]\n");
    EXPECT_TRUE(ToolDataSave(shop.tools, emptied, shop.logger).removed.empty());
    EXPECT_EQ(emptied.wholeText("Tool01"), "2|Drill|3.000|0.000");
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
    const std::string tooLong(80, 'x'); // by another program
    for (const std::string& type : {std::string("T-slot, 6; \"fine\""), std::string("a|b\\c"),
                                    std::string(" V-Fr\xC3\xA4ser "), std::string(";x"), tooLong})
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
