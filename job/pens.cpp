// SPDX-License-Identifier: MIT
#include "job/pens.h"

#include "base/error_trap.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "job/job.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>
#include <string_view>

namespace torvik {
namespace {

constexpr double closureTolerance = 0.5; // mm, |x| + |y| between the ends of a closed circle

struct PenColour {
    std::string_view name;
    std::int32_t colour; // 0x00BBGGRR
};

constexpr std::array<PenColour, penCount> penColours{{
    {"Black", 0x000000},
    {"Red", 0x0000FF},
    {"Green", 0x00FF00},
    {"Blue", 0xFF0000},
    {"Brown", 0x004080},
    {"Orange", 0x0080FF},
    {"Pink", 0xC080FF},
    {"Purple", 0x800040},
}};

constexpr std::array<std::string_view, 16> ordinals{
    "First", "Second", "Third",    "Fourth",  "Fifth",      "Sixth",      "Seventh",   "Eighth",
    "Ninth", "Tenth",  "Eleventh", "Twelfth", "Thirteenth", "Fourteenth", "Fifteenth", "Sixteenth"};

void appendSettingsGroup(Job& job) {
    if (job.answers.gintSettingsCount == std::numeric_limits<std::int16_t>::max())
        throw FileError(job.drawing.gstrPlotFile,
                        "the pens and their circle sizes are more than 32767 together");
    ++job.answers.gintSettingsCount;
    job.answers.gudtSettings.append({});
}

// The radii are ascending, so only those close to the new one are looked at.
bool hasRadius(const Pen& pen, float radius) {
    const auto first =
        std::lower_bound(pen.sngRadii.begin(), pen.sngRadii.end(), radius - 2 * radiusTolerance);
    for (auto at = first; at != pen.sngRadii.end() && *at <= radius + 2 * radiusTolerance; ++at)
        if (singleDistance(*at, radius) <= radiusTolerance)
            return true;
    return false;
}

void insertRadius(Pen& pen, float radius) {
    const auto place = std::upper_bound(pen.sngRadii.begin(), pen.sngRadii.end(), radius);
    pen.intRadiusCount = toInt16(pen.intRadiusCount + 1.0);
    pen.sngRadii.insert(place - pen.sngRadii.begin() + 1, radius);
}

void checkForCircles(Job& job, std::int16_t number) {
    Pen& pen = job.answers.gudtPens[number];
    bool circles = true;
    for (Path& path : job.drawing.gudtPaths) {
        if (path.intPen != number)
            continue;
        circles = isClosedCircle(path);
        if (!circles)
            break;
        path.sngAngleTo = path.sngAngleFrom;
        if (!hasRadius(pen, path.sngRadius)) {
            insertRadius(pen, path.sngRadius);
            appendSettingsGroup(job);
        }
    }
    // Groups appended for sizes met before the presumption fell stay: groups count by position.
    if (!circles) {
        pen.intRadiusCount = 0;
        pen.sngRadii.erase();
    }
    pen.blnCircles = circles;
}

void setUpPens(Job& job) {
    BoundedArray<bool, 1, penCount> used;
    for (const Path& path : job.drawing.gudtPaths)
        used[path.intPen] = true;

    job.answers.gintSettingsCount = 0;
    job.answers.gudtSettings.erase();
    job.answers.gintPenCount = 0;
    job.answers.gudtPens.fill({});
    SetColourDefinitions(job);
    for (std::int16_t number = 1; number <= penCount; ++number) {
        if (!used[number])
            continue;
        ++job.answers.gintPenCount;
        Pen& pen = job.answers.gudtPens[number];
        pen.blnUsed = true;
        appendSettingsGroup(job);
        pen.intSettings = job.answers.gintSettingsCount;
        checkForCircles(job, number);
    }
}

} // namespace

void SetColourDefinitions(Job& job) {
    for (std::int16_t number = 1; number <= penCount; ++number) {
        const PenColour& colour = penColours[static_cast<std::size_t>(number - 1)];
        job.answers.gudtPens[number].lngColour = colour.colour;
        job.answers.gudtPens[number].strColour = colour.name;
    }
    std::copy(ordinals.begin(), ordinals.end(), job.output.gstrOrdinal.begin());
}

bool SetUpPens(Job& job, Logger& logger) {
    return withErrorTrap(logger, {"SetUpPens", "modHpgl"}, [&] { setUpPens(job); });
}

bool CheckForCircles(Job& job, std::int16_t intPen, Logger& logger) {
    return withErrorTrap(logger, {"CheckForCircles", "modHpgl"},
                         [&] { checkForCircles(job, intPen); });
}

bool SortPaths(Job& job, Logger& logger) {
    return withErrorTrap(logger, {"SortPaths", "modHpgl"}, [&] {
        auto& order = job.drawing.gintPathOrder;
        order.resize(job.drawing.gintPathCount);
        std::iota(order.begin(), order.end(), std::int16_t{1});
        std::stable_sort(order.begin(), order.end(), [&](std::int16_t a, std::int16_t b) {
            return job.drawing.gudtPaths[a].sngSortKey < job.drawing.gudtPaths[b].sngSortKey;
        });
    });
}

void rebuildOrder(Job& job) {
    job.answers.gintOrder.fill(0);
    job.answers.gintOrderCount = 0;
    for (std::int16_t number = 1; number <= penCount; ++number)
        if (isMachined(job, number))
            job.answers.gintOrder[++job.answers.gintOrderCount] = number;
}

bool isMachined(const Job& job, std::int16_t pen) {
    return job.answers.gudtPens[pen].blnUsed && !job.answers.gudtPens[pen].blnOmit;
}

bool isClosedCircle(const Path& path) {
    return path.sngRadius != 0 && std::fabs(double{path.sngEndX} - path.sngStartX) +
                                          std::fabs(double{path.sngEndY} - path.sngStartY) <=
                                      closureTolerance;
}

} // namespace torvik
