// SPDX-License-Identifier: MIT
#include "job/job.h"
#include "job/pens.h"
#include "preview/depths.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

TEST(SaveDepth, KeepsDistinctDepthsAscending) {
    DepthList depths;
    for (const float depth : {1.0F, 5.0F, 3.0F, 3.0F, 0.5F, 5.0F})
        SaveDepth(depths, depth);
    EXPECT_EQ(depths.gsngDepths, (OneBasedArray<float>{0.5F, 1, 3, 5}));
    EXPECT_EQ(depths.gintDepthCount, 4);
}

TEST(LngPlotColour, DarkensWithTheDepth) {
    const struct {
        const char* name;
        float depth, shallowest, deepest;
        std::int32_t colour;
    } cases[] = {
        {"the shallowest is 208", 1, 1, 5, 208 * 0x010101},
        {"half way is 112", 3, 1, 5, 112 * 0x010101},
        {"the deepest is 16", 5, 1, 5, 16 * 0x010101},
        {"one depth only is light grey", 3, 3, 3, 0xC0C0C0},
        {"207.5 is rounded up to the even 208", 1, 0, 384, 208 * 0x010101},
        {"206.5 is rounded down to the even 206", 3, 0, 384, 206 * 0x010101},
    };
    for (const auto& row : cases)
        EXPECT_EQ(lngPlotColour(row.depth, row.shallowest, row.deepest), row.colour) << row.name;
}

TEST(LngPenColour, KnowsPens1To8Only) {
    Job job;
    SetColourDefinitions(job);
    EXPECT_EQ(lngPenColour(job.answers, 7), 0xC080FF);
    EXPECT_THROW(lngPenColour(job.answers, 0), SubscriptOutOfRange);
    EXPECT_THROW(lngPenColour(job.answers, 9), SubscriptOutOfRange);
}

} // namespace
} // namespace torvik
