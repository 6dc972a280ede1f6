// SPDX-License-Identifier: MIT
#include "forms/key_filters.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

using enum KeyHint;

TEST(KeyFilters, Diameters) {
    const struct {
        const char* name;
        const char* before; // the caret
        const char* after;
        bool selection;
        char32_t key;
        KeyHint hint;
    } rows[] = {
        {"a point begins a number", "", "", false, U'.', none},
        {"a second point is discarded", "1.5", "", false, U'.', pointThere},
        {"before the first point, too", "", "1.5", false, U'.', pointThere},
        {"a selection is replaced by a point", "1.5", "", true, U'.', none},
        {"a third decimal passes", "1.25", "", false, U'4', none},
        {"a fourth decimal is discarded", "1.250", "", false, U'4', threeDecimals},
        {"between the decimals, too", "1.", "250", false, U'4', threeDecimals},
        {"just before the point it is no decimal", "1", ".250", false, U'4', none},
        {"a selection is replaced by a digit", "1.250", "", true, U'4', none},
        {"backspace passes", "1.250", "", false, 8, none},
        {"delete passes", "1.250", "", false, 0x7F, none},
        {"a comma is no point", "1", "", true, U',', usePoint},
        {"no minus", "", "", false, U'-', digitsAndPoint},
    };
    for (const auto& row : rows) {
        const std::string text = std::string(row.before) + row.after;
        const BoxState box{text, std::string_view(row.before).size(), row.selection};
        EXPECT_EQ(toolDiameterHint(row.key, box), row.hint) << row.name;
    }
}

TEST(KeyFilters, Numbers) {
    for (const char32_t key : {U'0', U'9', U'\b', U'\x7F'})
        EXPECT_EQ(toolNumberHint(key, {}), none) << static_cast<unsigned>(key);
    for (const char32_t key : {U'.', U'-', U' ', U'a', U'/', U':'})
        EXPECT_EQ(toolNumberHint(key, {}), digitsOnly) << static_cast<unsigned>(key);
}

} // namespace
} // namespace torvik
