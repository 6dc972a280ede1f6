// SPDX-License-Identifier: MIT
#include "base/arrays.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

std::string raised(const std::function<void()>& work) {
    try {
        work();
    } catch (const SubscriptOutOfRange& error) {
        return error.what();
    }
    return "nothing";
}

TEST(Arrays, CheckEverySubscript) {
    OneBasedArray<int> list{10, 30};
    BoundedArray<int, 0, 8> fields;
    list.insert(2, 20);
    list.insert(4, 40);
    fields[8] = 5;
    EXPECT_EQ(list, (OneBasedArray<int>{10, 20, 30, 40}));
    EXPECT_EQ(fields[0] + fields[8], 5);

    const std::string range = " (the list runs from 1 to 4)";
    EXPECT_EQ(raised([&] { list[0] = 1; }), "there is no entry number 0" + range);
    EXPECT_EQ(raised([&] { list[5] = 1; }), "there is no entry number 5" + range);
    EXPECT_EQ(raised([&] { list.insert(6, 1); }), "there is no entry number 6" + range);
    EXPECT_EQ(raised([&] { fields[9] = 1; }),
              "there is no entry number 9 (the list runs from 0 to 8)");
    EXPECT_NE(raised([&] { fields[-1] = 1; }), "nothing");
    list.erase();
    EXPECT_EQ(raised([&] { list[1] = 1; }), "there is no entry number 1 (the list is empty)");
}

} // namespace
} // namespace torvik
