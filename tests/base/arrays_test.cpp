// SPDX-License-Identifier: MIT
#include "base/arrays.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

TEST(Arrays, CheckEverySubscript) {
    OneBasedArray<int> list{10, 30};
    BoundedArray<int, 0, 8> fields;
    list.insert(2, 20);
    list.insert(4, 40);
    fields[8] = 5;
    EXPECT_EQ(list, (OneBasedArray<int>{10, 20, 30, 40}));
    EXPECT_EQ(fields[0] + fields[8], 5);
    EXPECT_THROW(list[0], SubscriptOutOfRange);
    EXPECT_THROW(list[5], SubscriptOutOfRange);
    EXPECT_THROW(list.insert(6, 1), SubscriptOutOfRange);
    EXPECT_THROW(fields[-1], SubscriptOutOfRange);
    EXPECT_THROW(fields[9], SubscriptOutOfRange);
    list.erase();
    EXPECT_THROW(list[1], SubscriptOutOfRange);
}

} // namespace
} // namespace torvik
