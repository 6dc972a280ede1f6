// SPDX-License-Identifier: MIT
// What can be found in a program and in what was asked for: each kind has a name, a level and one
// sentence for a pupil. This table is the only place where the sentences stand.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace torvik::check {

enum class Level : std::uint8_t {
    note,  // good to know
    look,  // may be meant, have a look
    wrong, // the machine will not do what was meant, or may refuse the program
    danger // tool, work or machine can break
};

enum class Kind : std::uint8_t {
    lineEnd,
    lineNumber,
    statement,
    number,
    opening,
    ending,
    comment,
    noList,
    rapidSideways,
    rapidDown,
    lowRapid,
    oddHeight,
    unknownPlace,
    airCut,
    upwardFeed,
    emptyPlunge,
    lostRapid,
    endHeight,
    surfaceCut,
    slowPlunge,
    noTool,
    toolLow,
    toolSpinning,
    toolStop,
    toolOrder,
    toolOffset,
    toolUnlisted,
    spindleOff,
    spindleZero,
    spindleLeftOn,
    spindleOdd,
    feedMissing,
    feedZero,
    feedOdd,
    dwellOdd,
    arcMisses,
    arcNoRadius,
    arcCollapsed,
    arcOneAngle,
    elementLost,
    elementTwice,
    elementOrder,
    notAsked,
    groupOrder,
    place,
    shapeDiffers,
    deeperThanAsked,
    shallowerThanAsked,
    wayDiffers,
    toolDiffers,
    speedDiffers,
    feedDiffers,
    dwellDiffers,
    peckDiffers,
    sweepCircle,
    circleLost,
    clampedArc,
    tooDeep,
    through,
    outside,
    tooWide,
    passDiffers,
    holeDiffers,
    holeTwice,
    // seen from the job alone
    heightLow,
    heightOrder,
    billetDepth,
    depthHigh,
    billetOutside,
    drillCuts,
    endMillDrills,
    deepStep,
    holeNarrow,
    feedHigh,
    feedUnits,
    dwellLong,
    outlineEarly,
    outlineEarlyOwn,
    toolChanges,
};

inline constexpr std::size_t kindCount = static_cast<std::size_t>(Kind::toolChanges) + 1;

struct KindRow {
    Kind kind;
    std::string_view name;
    Level level;
    std::string_view sentence; // {1} to {4} stand for the values of a finding
};

// All kinds, in the order of the enumeration.
std::span<const KindRow> kinds();

const KindRow& rowOf(Kind kind);

// "danger", "wrong", "look", "note".
std::string_view levelName(Level level);

} // namespace torvik::check
