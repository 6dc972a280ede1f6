// SPDX-License-Identifier: MIT
#include "tests/tools/dialogs/tool_dialogs_fixture.h"
#include "tools/tool_edits.h"

namespace torvik {
namespace {

std::string numbers(const ToolList& tools) {
    std::string all;
    for (const Tool& tool : tools.gudtTools)
        all += std::to_string(tool.intNumber) + " ";
    return all + "/" + std::to_string(tools.gintToolCount);
}

TEST(ToolEdits, LaterToolsMoveDownAndTheArrayKeepsItsSize) {
    ToolList tools = drills(4);
    deleteTool(tools, 2);
    deleteTool(tools, 3);
    EXPECT_EQ(numbers(tools), "1 3 4 4 /2");
    EXPECT_THROW(deleteTool(tools, 3), SubscriptOutOfRange);
    addTool(tools, {9, "Reamer", 9});
    EXPECT_EQ(numbers(tools), "1 3 9 /3");
}

} // namespace
} // namespace torvik
