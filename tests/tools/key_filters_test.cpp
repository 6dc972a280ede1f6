// SPDX-License-Identifier: MIT
#include "forms/key_filters.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

constexpr const char* third = "Three digits after the point at most";
constexpr const char* second = "There is a point already";

TEST(KeyFilters, Diameters) {
    const struct {
        const char* name;
        const char* before; // the caret
        const char* after;
        bool selection;
        char32_t key;
        const char* hint;
    } rows[] = {
        {"a point begins a number", "", "", false, U'.', ""},
        {"a second point is discarded", "1.5", "", false, U'.', second},
        {"before the first point, too", "", "1.5", false, U'.', second},
        {"a selection is replaced by a point", "1.5", "", true, U'.', ""},
        {"a third decimal passes", "1.25", "", false, U'4', ""},
        {"a fourth decimal is discarded", "1.250", "", false, U'4', third},
        {"between the decimals, too", "1.", "250", false, U'4', third},
        {"just before the point it is no decimal", "1", ".250", false, U'4', ""},
        {"a selection is replaced by a digit", "1.250", "", true, U'4', ""},
        {"backspace passes", "1.250", "", false, 8, ""},
        {"delete passes", "1.250", "", false, 0x7F, ""},
        {"a comma is no point", "1", "", true, U',', "Use the point"},
        {"no minus", "", "", false, U'-', "Digits and the point only"},
    };
    for (const auto& row : rows) {
        const std::string text = std::string(row.before) + row.after;
        const BoxState box{text, std::string_view(row.before).size(), row.selection};
        EXPECT_EQ(toolDiameterHint(row.key, box), row.hint) << row.name;
    }
}

TEST(KeyFilters, Numbers) {
    for (const char32_t key : {U'0', U'9', U'\b', U'\x7F'})
        EXPECT_EQ(toolNumberHint(key, {}), "") << static_cast<unsigned>(key);
    for (const char32_t key : {U'.', U'-', U' ', U'a', U'/', U':'})
        EXPECT_EQ(toolNumberHint(key, {}), "Digits only") << static_cast<unsigned>(key);
}

} // namespace
} // namespace torvik
