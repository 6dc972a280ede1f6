// SPDX-License-Identifier: MIT
#include "check/kinds.h"

#include <array>

namespace torvik::check {
namespace {

constexpr std::array kindRows{
    // how it is written
    KindRow{Kind::lineEnd, "line-end", Level::wrong,
            "The line does not end with carriage return and line feed, or a control character "
            "stands in it."},
    KindRow{Kind::lineNumber, "line-number", Level::wrong,
            "The line number should be N{1}. A line may have been lost, added or moved."},
    KindRow{Kind::statement, "statement", Level::wrong,
            "\"{1}\" is not a line that {2} programs have at this place."},
    KindRow{Kind::number, "number", Level::wrong,
            "\"{1}\" is not written as it should be: here a number looks like {2}."},
    KindRow{Kind::opening, "opening", Level::wrong,
            "The beginning of the program is not right: {1}."},
    KindRow{Kind::ending, "ending", Level::wrong, "The end of the program is not right: {1}."},
    KindRow{Kind::comment, "comment", Level::wrong,
            "A bracket stands inside this comment, or it does not close. The machine may take the "
            "rest for commands."},
    KindRow{Kind::noList, "no-list", Level::note,
            "There is no list of tools to compare with the tools of the program."},

    // how the tool moves
    KindRow{Kind::rapidSideways, "rapid-sideways", Level::danger,
            "The tool moves sideways at full speed at Z{1}, inside the material."},
    KindRow{Kind::rapidDown, "rapid-down", Level::danger,
            "The tool goes down to Z{1} at full speed and hits the material."},
    KindRow{Kind::lowRapid, "low-rapid", Level::wrong,
            "The tool moves sideways at full speed at Z{1}; elsewhere it first goes up to Z{2}."},
    KindRow{Kind::oddHeight, "odd-height", Level::look,
            "A move at full speed at Z{1} does not fit: elsewhere the heights are {2}."},
    KindRow{Kind::unknownPlace, "unknown-place", Level::danger,
            "The tool moves although the program has not said yet {1}."},
    KindRow{Kind::airCut, "air-cut", Level::wrong,
            "The tool cuts at Z{1}, above the material. It does not go down far enough."},
    KindRow{Kind::upwardFeed, "upward-feed", Level::wrong,
            "The tool goes up slowly from Z{1} to Z{2}, where a way down should be."},
    KindRow{Kind::emptyPlunge, "empty-plunge", Level::wrong,
            "The tool goes into the material and comes out again without cutting."},
    KindRow{Kind::lostRapid, "lost-rapid", Level::look,
            "The tool goes up and down again at one place. A move sideways may be missing."},
    KindRow{Kind::endHeight, "end-height", Level::wrong,
            "At the end the tool stays at Z{1}, lower than at a tool change."},
    KindRow{Kind::surfaceCut, "surface-cut", Level::look,
            "The tool moves along the surface at Z0.00 and cuts nothing."},
    KindRow{Kind::slowPlunge, "slow-plunge", Level::look,
            "The slow way down begins at Z{1} already. The quick move to Z{2} may be missing."},

    // tool and spindle
    KindRow{Kind::noTool, "no-tool", Level::danger, "The program cuts before it has taken a tool."},
    KindRow{Kind::toolLow, "tool-low", Level::danger,
            "The tool is changed at Z{1}. It should be at Z{2} or higher for that."},
    KindRow{Kind::toolSpinning, "tool-spinning", Level::danger,
            "The tool is changed while the spindle turns."},
    KindRow{Kind::toolStop, "tool-stop", Level::danger,
            "The machine does not stop for this tool change as it should: {1} must stand before "
            "it."},
    KindRow{Kind::toolOrder, "tool-order", Level::wrong,
            "The tools are not those of the header's list: {1}."},
    KindRow{Kind::toolOffset, "tool-offset", Level::danger,
            "Tool T{1} is used with the length of another tool: {2} should be {3}."},
    KindRow{Kind::toolUnlisted, "tool-unlisted", Level::wrong,
            "Tool T{1} is not in the header's list."},
    KindRow{Kind::spindleOff, "spindle-off", Level::danger,
            "The tool cuts while the spindle stands still. The spindle speed may be missing."},
    KindRow{Kind::spindleZero, "spindle-zero", Level::danger,
            "The spindle speed is 0, the tool does not turn."},
    KindRow{Kind::spindleLeftOn, "spindle-left-on", Level::wrong,
            "The program ends, but the spindle still turns."},
    KindRow{Kind::spindleOdd, "spindle-odd", Level::look,
            "A spindle speed of {1} turns a minute is unusual."},

    // feed and dwell
    KindRow{Kind::feedMissing, "feed-missing", Level::wrong, "This move has no feed (F)."},
    KindRow{Kind::feedZero, "feed-zero", Level::wrong,
            "The feed is 0 or below, the machine would stand still."},
    KindRow{Kind::feedOdd, "feed-odd", Level::look, "A feed of {1} mm/min is unusual here."},
    KindRow{Kind::dwellOdd, "dwell-odd", Level::look,
            "The tool waits {1} s at Z{2}. That is unusual."},

    // arcs
    KindRow{Kind::arcMisses, "arc-misses", Level::wrong,
            "The arc ends {1} mm beside its own circle. The machine may refuse it."},
    KindRow{Kind::arcNoRadius, "arc-no-radius", Level::wrong,
            "The arc has no radius: its centre is where it starts."},
    KindRow{Kind::arcCollapsed, "arc-collapsed", Level::wrong,
            "The arc is only {1} mm long. If a full circle was meant, it will not be cut."},
    KindRow{Kind::arcOneAngle, "arc-one-angle", Level::wrong,
            "Start and end of the arc lie in one direction from its centre. The machine may cut a "
            "full circle or nothing."},

    // against what the job asks for
    KindRow{Kind::elementLost, "element-lost", Level::wrong, "{1} missing here. {2}."},
    KindRow{Kind::elementTwice, "element-twice", Level::wrong,
            "{1} done before: the job asks for it once only."},
    KindRow{Kind::elementOrder, "element-order", Level::wrong,
            "{1} done at another time than the job asks for."},
    KindRow{Kind::notAsked, "not-asked", Level::wrong, "{1} no part of the job."},
    KindRow{Kind::groupOrder, "group-order", Level::wrong,
            "The machining order is another one: {1} come later than the job asks for."},
    KindRow{Kind::place, "place", Level::wrong, "{1} should be at {2}, here it is at {3}."},
    KindRow{Kind::shapeDiffers, "shape-differs", Level::wrong,
            "The job asks for {1} here, the program has {2}."},
    KindRow{Kind::deeperThanAsked, "deeper-than-asked", Level::danger,
            "The tool is at Z{1} here. That is too deep: for {2} the job asks for Z{3}.{4}"},
    KindRow{Kind::shallowerThanAsked, "shallower-than-asked", Level::wrong,
            "The tool is at Z{1} here. That is not deep enough: for {2} the job asks for Z{3}."},
    KindRow{Kind::wayDiffers, "way-differs", Level::wrong,
            "The tool gets here on another way than it should: {1}."},
    KindRow{Kind::toolDiffers, "tool-differs", Level::danger,
            "For {1} the job asks for {2}, the program takes {3}."},
    KindRow{Kind::speedDiffers, "speed-differs", Level::wrong,
            "For {1} the job asks for a spindle speed of {2}, the program has {3}."},
    KindRow{Kind::feedDiffers, "feed-differs", Level::wrong,
            "The job asks for a feed of {1} mm/min here, the program has {2}."},
    KindRow{Kind::dwellDiffers, "dwell-differs", Level::wrong,
            "The job asks the tool to wait {1} here, in the program it waits {2}."},
    KindRow{Kind::peckDiffers, "peck-differs", Level::wrong,
            "The hole is not drilled in the steps that the job asks for: {1}."},
    KindRow{Kind::sweepCircle, "sweep-circle", Level::wrong,
            "A full circle is cut here. The drawing has an arc of {1} mm only, so short that its "
            "end is written like its start."},
    KindRow{Kind::circleLost, "circle-lost", Level::wrong,
            "The drawing has a full circle here, but its end is written a little behind its start: "
            "only {1} mm of it are cut."},
    KindRow{Kind::clampedArc, "clamped-arc", Level::look,
            "The arc starts almost level with its centre and is read as if it started exactly "
            "there. It becomes {1} mm {2} than it is drawn."},

    // billet
    KindRow{Kind::tooDeep, "too-deep", Level::danger,
            "The tool goes {1} mm deep, but the billet is {2} mm thick. It would cut the table."},
    KindRow{Kind::through, "through", Level::note,
            "The tool goes {1} mm deep and so through the billet of {2} mm."},
    KindRow{Kind::outside, "outside", Level::wrong,
            "The cuts reach {1}, outside the billet that lies from 0 to {2}."},
    KindRow{Kind::tooWide, "too-wide", Level::wrong,
            "The cuts need {1} mm in {3}, the billet has {2} mm."},

    // passes and holes
    KindRow{Kind::passDiffers, "pass-differs", Level::wrong,
            "The pass at Z{1} does not fit the pass before. A cut or a whole pass may be missing."},
    KindRow{Kind::holeDiffers, "hole-differs", Level::look,
            "This hole is not drilled like the holes beside it."},
    KindRow{Kind::holeTwice, "hole-twice", Level::look,
            "The same tool has drilled a hole at this place before."},

    // seen from the job alone
    KindRow{Kind::heightLow, "height-low", Level::danger,
            "The {1} must be above 0, or the tool goes through the material at full speed."},
    KindRow{Kind::heightOrder, "height-order", Level::wrong,
            "The {1} is lower than the {2}. It should be at least as high."},
    KindRow{Kind::billetDepth, "billet-depth", Level::danger,
            "The depth of {1} is {2} mm, but the billet is only {3} mm thick. The tool would cut "
            "the table."},
    KindRow{Kind::depthHigh, "depth-high", Level::danger,
            "The depth of {1} is {2} mm. No tool is that long."},
    KindRow{Kind::billetOutside, "billet-outside", Level::wrong,
            "The drawing reaches {1}, outside the billet that lies from 0 to {2}."},
    KindRow{Kind::drillCuts, "drill-cuts", Level::danger,
            "A {2} cannot cut {1}: it is made to go straight down and breaks on its way sideways."},
    KindRow{Kind::endMillDrills, "end-mill-drills", Level::look,
            "An End mill is to drill {1}. Many do not cut in their middle; a Drill is safer."},
    KindRow{Kind::deepStep, "deep-step", Level::look,
            "Each pass of {1} is {2} mm deep, but the tool is only {3} mm wide. It may break."},
    KindRow{Kind::holeNarrow, "hole-narrow", Level::wrong,
            "The tool is {2} mm wide, too wide for {1}."},
    KindRow{Kind::feedHigh, "feed-high", Level::look,
            "A feed of {2} mm/min for {1} is faster than usual."},
    KindRow{Kind::feedUnits, "feed-units", Level::wrong,
            "A feed of {2} mm/sec for {1} is {3} mm/min. Was mm per minute meant? The unit is "
            "chosen on the page of the heights."},
    KindRow{Kind::dwellLong, "dwell-long", Level::look,
            "The tool waits {2} s in each of {1}. That is longer than usual."},
    KindRow{Kind::outlineEarly, "outline-early", Level::wrong,
            "An outline of {1} is cut through before {2} inside it, so the part may come loose. "
            "Put {2} before it in the order."},
    KindRow{Kind::outlineEarlyOwn, "outline-early-own", Level::wrong,
            "An outline of {1} is cut through before other lines of its pen inside it, so the part "
            "may come loose. Draw the outline last, or with a pen of its own."},
    KindRow{Kind::toolChanges, "tool-changes", Level::note,
            "Tool changes: {1}. With another order of the pens there would be only {2}."},
};

constexpr bool isInOrder() {
    for (std::size_t i = 0; i < kindRows.size(); ++i)
        if (static_cast<std::size_t>(kindRows[i].kind) != i)
            return false;
    return kindRows.size() == kindCount;
}
static_assert(isInOrder(), "a kind's row is found by its place");

} // namespace

std::span<const KindRow> kinds() {
    return kindRows;
}

const KindRow& rowOf(Kind kind) {
    return kindRows[static_cast<std::size_t>(kind)];
}

std::string_view levelName(Level level) {
    constexpr std::array<std::string_view, 4> names{"note", "look", "wrong", "danger"};
    return names[static_cast<std::size_t>(level)];
}

} // namespace torvik::check
