// SPDX-License-Identifier: MIT
#include "app/beside.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

TEST(Beside, TheFormStaysInSight) {
    const QRect screen(0, 0, 1366, 768);
    const struct {
        const char* says;
        QRect form;
        QRect place;
    } rows[] = {
        {"to the right, where it fits", {10, 50, 400, 600}, {410, 50, 860, 600}},
        {"narrower where there is less room", {90, 60, 650, 700}, {740, 60, 626, 620}},
        {"to the left of a dialog on the right", {900, 100, 400, 500}, {40, 100, 860, 500}},
        {"no lower than can be read in", {0, 700, 400, 68}, {400, 368, 860, 400}},
        {"over a form that fills the screen", {0, 0, 1366, 768}, {946, 0, 420, 620}},
        {"a form that is half off the screen", {-300, 20, 600, 500}, {300, 20, 860, 500}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(placeBeside(row.form, screen, {860, 620}, {420, 400}), row.place) << row.says;
    EXPECT_EQ(placeBeside({0, 0, 300, 200}, {0, 0, 320, 240}, {860, 620}, {420, 400}),
              QRect(0, 0, 320, 240))
        << "a screen smaller than the least window";
}

} // namespace
} // namespace torvik
