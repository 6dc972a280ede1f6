// SPDX-License-Identifier: MIT
#include "job/pens.h"

#include "base/error_trap.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "job/hole_sizes.h"
#include "job/job.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <set>
#include <string_view>
#include <vector>

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

// The kept sizes lie further apart than the tolerance, so only the neighbours count.
bool hasSize(const std::set<float>& sizes, float radius) {
    const auto next = sizes.lower_bound(radius);
    return (next != sizes.end() && isSameSize(*next, radius)) ||
           (next != sizes.begin() && isSameSize(*std::prev(next), radius));
}

// Makes the pen's circles full turns and adds their radii, until a path of the pen is no circle;
// false where there is one.
bool collectRadii(Drawing& drawing, std::int16_t number, std::vector<float>& radii) {
    for (Path& path : drawing.gudtPaths) {
        if (path.intPen != number)
            continue;
        if (!isClosedCircle(path))
            return false;
        path.sngAngleTo = path.sngAngleFrom;
        radii.push_back(path.sngRadius);
    }
    return true;
}

// The radii without those of the size of one before, ascending.
std::vector<float> distinctSizes(const std::vector<float>& radii) {
    std::vector<float> different = radii;
    std::sort(different.begin(), different.end());
    different.erase(std::unique(different.begin(), different.end()), different.end());
    if (std::adjacent_find(different.begin(), different.end(), isSameSize) == different.end())
        return different;
    // Where some are nearly alike it counts which one comes first.
    std::set<float> sizes;
    for (const float radius : radii)
        if (!hasSize(sizes, radius))
            sizes.insert(radius);
    return {sizes.begin(), sizes.end()};
}

void checkForCircles(Job& job, std::int16_t number) {
    Pen& pen = job.answers.gudtPens[number];
    std::vector<float> radii(pen.sngRadii.begin(), pen.sngRadii.end());
    const std::size_t before = radii.size();
    pen.blnCircles = collectRadii(job.drawing, number, radii);
    const std::vector<float> sizes = distinctSizes(radii);
    pen.sngRadii.erase();
    if (pen.blnCircles)
        for (const float size : sizes)
            pen.sngRadii.append(size);
    pen.intRadiusCount = toInt16(static_cast<double>(pen.sngRadii.count()));
    // Also for sizes met before the line that makes it a pen to cut: groups count by position.
    for (std::size_t i = before; i < sizes.size(); ++i)
        appendSettingsGroup(job);
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

void rebuildOrder(Job& job) {
    Answers& answers = job.answers;
    answers.gintOrder.fill(0);
    answers.gintOrderCount = 0;
    for (std::int16_t number = 1; number <= penCount; ++number)
        if (isMachined(answers, number))
            answers.gintOrder[++answers.gintOrderCount] = number;
}

bool isMachined(const Answers& answers, std::int16_t pen) {
    return answers.gudtPens[pen].blnUsed && !answers.gudtPens[pen].blnOmit;
}

bool isClosedCircle(const Path& path) {
    return path.sngRadius != 0 && std::fabs(double{path.sngEndX} - path.sngStartX) +
                                          std::fabs(double{path.sngEndY} - path.sngStartY) <=
                                      closureTolerance;
}

} // namespace torvik
