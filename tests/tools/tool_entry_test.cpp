// SPDX-License-Identifier: MIT
#include "tools/tool_entry.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

TEST(ToolEntry, IsRefusedForTheFirstFault) {
    using enum ToolFault;
    ToolList tools;
    tools.gudtTools = {{7, "Slot drill", 6}, {3, "Drill", 3}, {4, "Drill", 0.1F}, {9, "Reamer", 9}};
    tools.gintToolCount = 3; // the fourth was deleted
    const std::string digits(39, '9');
    const std::string type(60, 't');
    const struct {
        const char* name;
        ToolEntry entry;
        std::int16_t place;
        std::optional<ToolFault> fault;
    } rows[] = {
        {"a number in use, as typed", {"007", "Drill", "3"}, 0, numberTaken},
        {"a deleted tool's number is free", {"9", "Reamer", "9"}, 0, {}},
        {"typed shorter than shown", {"5", "Drill", "3"}, 0, sameTool},
        {"no exact single", {"5", "Drill", ".1"}, 0, sameTool},
        {"a type in another case", {"5", "drill", "3"}, 0, {}},
        {"a tool left as it was", {"3", "Drill", "3.000"}, 2, {}},
        {"a number beyond it", {"32768", "Drill", "6"}, 0, numberTooLarge},
        {"a fraction", {"6.6", "Drill", "6"}, 0, numberNotWhole},
        {"no whole number as it stands", {"6x", "Drill", "6"}, 0, numberNotWhole},
        {"no diameter as it stands", {"5", "Drill", "6.5.20"}, 0, diameterNotNumber},
        {"negative", {"5", "Drill", "-6"}, 0, diameterNegative},
        {"huge", {"5", "Drill", digits}, 0, diameterTooLarge},
        // The type and the rest: 1 + 1 + 60 + 1 + 5 + 1 + 9 characters, of 79 at most.
        {"a record that can just be read", {"55", type, "6"}, 0, {}},
        {"one that cannot", {"555", type, "6"}, 0, recordTooLong},
    };
    for (const auto& row : rows)
        EXPECT_EQ(toolFault(tools, row.entry, row.place), row.fault) << row.name;
}

} // namespace
} // namespace torvik
