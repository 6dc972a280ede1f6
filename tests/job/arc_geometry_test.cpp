// SPDX-License-Identifier: MIT
#include "base/logger.h"
#include "job/arc_geometry.h"
#include "job/records.h"

#include <gtest/gtest.h>
#include <tuple>

namespace torvik {
namespace {

// Expected values were computed apart from this program, singles with all their bits. On the first
// two arcs a difference, angle, sweep or radius that is rounded too early or too late shows, and
// so does an end angle that is made from the corrected start angle.
TEST(GetEndPoint, RoundsToSingleWhereTheFieldsAreStored) {
    const struct {
        float startX, startY, centreX, centreY, sweep, endX, endY, from, to, radius;
    } rows[] = {
        {33.3F, -79.075F, -21.175F, -14.475F, 118, 0x1.493f6ap+3F, 0x1.ff9c82p+5F, 0x1.5a6df2p+2F,
         0x1.307392p+0F, 0x1.5202a4p+6F},
        {63.425F, 40.7F, -15.4F, 40.8F, 219, -0x1.32a26p+6F, -0x1.19cc8ep+3F, 0x1.777a22p-23F,
         0x1.e9402ep+1F, 0x1.3b4cdcp+6F},
        // Two turns and a quarter: one turn is taken away, no more.
        {10, 0, 0, 0, 810, 0x1.7550cep-20F, 10, 0, 0x1.f6a7a2p+2F, 10},
    };
    for (const auto& row : rows) {
        Logger logger;
        Path path;
        path.sngStartX = row.startX;
        path.sngStartY = row.startY;
        path.sngCentreX = row.centreX;
        path.sngCentreY = row.centreY;
        GetEndPoint(path, row.sweep, logger);
        EXPECT_EQ(std::tuple(path.sngEndX, path.sngEndY, path.sngAngleFrom, path.sngAngleTo,
                             path.sngRadius),
                  std::tuple(row.endX, row.endY, row.from, row.to, row.radius))
            << row.sweep;
    }
}

TEST(SngArcCos, GivesTheAngleOfAVector) {
    const struct {
        const char* says;
        float x, y, angle;
    } rows[] = {
        {"five sixths of a turn", 1, -1.7320508F, 5.2359877F},
        {"to the left", -2, 0, 3.1415927F},
        {"a cosine above 0.999999 is to the right", 1, 0.0014F, 0},
        {"... or a full turn, below the axis", 1, -0.0014F, 6.2831855F},
        {"a cosine just below 0.999999 has its angle", 1, 0.0015F, 0.0014999988F},
        {"a cosine below -0.999999 is to the left", -1, 0.0014F, 3.1415927F},
        {"... a hair less, below the axis", -1, -0.0014F, 3.1415925F},
    };
    Logger logger;
    for (const auto& row : rows)
        EXPECT_EQ(sngArcCos(row.x, row.y, logger), row.angle) << row.says;
}

} // namespace
} // namespace torvik
