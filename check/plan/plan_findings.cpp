// SPDX-License-Identifier: MIT
#include "check/plan/plan_findings.h"

#include "base/picture.h"
#include "check/plan/plan_words.h"
#include "check/plan/sweep.h"
#include "job/machined_groups.h"

#include <algorithm>
#include <numbers>

namespace torvik::check {
namespace {

template <typename Moves, typename KindOf>
auto firstOf(const Moves& moves, MoveKind kind, KindOf kindOf) {
    return std::find_if(moves.begin(), moves.end(),
                        [&](const auto& move) { return kindOf(move) == kind; });
}

// The number of the first move of the kind, unknown where there is none.
double askedValue(const Difference& difference, MoveKind kind) {
    const auto found =
        firstOf(difference.asked, kind, [](const AskedMove& move) { return move.kind; });
    return found == difference.asked.end() ? unknown : found->value;
}
double doneValue(const Difference& difference, MoveKind kind) {
    const auto found = firstOf(difference.done, kind, [](const Move* move) { return move->kind; });
    return found == difference.done.end() ? unknown : (*found)->value;
}

bool holds(const Difference& difference, MoveKind kind) {
    return std::any_of(difference.asked.begin(), difference.asked.end(),
                       [&](const AskedMove& move) { return move.kind == kind; }) ||
           std::any_of(difference.done.begin(), difference.done.end(),
                       [&](const Move* move) { return move->kind == kind; });
}

// Such a move is left, and not with one number in both.
bool isOtherValue(const Difference& difference, MoveKind kind) {
    return holds(difference, kind) &&
           !isSameNumber(askedValue(difference, kind), doneValue(difference, kind));
}

// One move of the kind stands where one is asked for.
bool isOneOther(const Difference& difference, MoveKind kind) {
    return difference.asked.size() == 1 && difference.done.size() == 1 &&
           difference.asked.front().kind == kind && difference.done.front()->kind == kind;
}

double deepest(MoveSpan moves) {
    double z = 0;
    for (const Move* move : moves)
        z = std::fmin(z, move->to.z);
    return z;
}

} // namespace

void PlanFindings::add(Kind kind, std::uint32_t line, std::vector<std::string> values) {
    m_findings.add(kind, line, std::move(values));
}

std::string PlanFindings::nameOf(const PlanGroup& group) const {
    return groupText(*group.pen, group.name.radius);
}

void PlanFindings::lost(std::size_t first, std::size_t end, std::uint32_t line) {
    const AskedItem item = m_asked.at(first);
    const std::size_t count = end - first;
    const std::string what = item.group->isDrilled ? "hole" : "cut";
    const std::string where = pointText(item.element->end) +
                              (item.pass == nullptr ? "" : " at Z" + heightText(item.pass->z));
    const bool isOne = count == 1;
    add(Kind::elementLost, line,
        {(isOne ? "A " + what : formatInteger(static_cast<long>(count)) + " " + what + "s") +
             " of " + nameOf(*item.group) + (isOne ? " is" : " are"),
         (isOne ? "It should go to " : "The first should go to ") + where});
}

void PlanFindings::moved(std::size_t first, std::size_t end, std::uint32_t line) {
    const AskedItem item = m_asked.at(first);
    const auto& groups = m_asked.groups();
    const bool areGroups =
        first == item.group->first &&
        (end == m_asked.size() || std::any_of(groups.begin(), groups.end(), [&](const auto& group) {
             return group.first == end && group.size() > 0;
         }));
    if (areGroups)
        add(Kind::groupOrder, line, {nameOf(*item.group)});
    else
        add(Kind::elementOrder, line, {theseText(end - first, item.group->isDrilled)});
}

void PlanFindings::added(std::size_t first, std::size_t end, bool isRepeated) {
    add(isRepeated ? Kind::elementTwice : Kind::notAsked, m_done.lineOf(first),
        {theseText(end - first, m_done.isHole(first))});
}

void PlanFindings::otherCut(const AskedItem& item, const Move& cut) {
    const AskedElement& element = *item.element;
    if (element.kind != cut.kind) {
        add(Kind::shapeDiffers, cut.line, {shapeText(element.kind), shapeText(cut.kind)});
        return;
    }
    const bool endsThere =
        isSameNumber(element.end.x, cut.to.x) && isSameNumber(element.end.y, cut.to.y);
    const Point centre{cut.from.x + element.offset.x, cut.from.y + element.offset.y};
    add(Kind::place, cut.line,
        {endsThere ? "The centre of this arc" : "The end of this cut",
         pointText(endsThere ? centre : element.end),
         pointText(endsThere ? cut.centre : endOf(cut))});
}

void PlanFindings::otherHeight(const AskedItem& item, double z, std::uint32_t line,
                               const Pen* pen) {
    const double asked = item.pass->z;
    const bool isDeeper = z < asked;
    const std::string advice =
        pen == nullptr || !isDeeper
            ? ""
            : " It begins where the " + pen->strColour + " lines end. In the order, move " +
                  item.group->pen->strColour + " before " + pen->strColour + ".";
    add(isDeeper ? Kind::deeperThanAsked : Kind::shallowerThanAsked, line,
        {heightText(z), nameOf(*item.group), heightText(asked), advice});
}

void PlanFindings::otherFeed(double asked, const Move& done) {
    add(Kind::feedDiffers, done.line, {numberText(asked, 1), numberText(done.feed, 1)});
}

void PlanFindings::otherSweep(const AskedItem& item, const Move& arc) {
    constexpr double rounds = 0.005; // mm by which rounded places make an arc longer or shorter
    const double radius = item.element->path->sngRadius;
    const double drawn = drawnSweep(*item.element->path);
    const double cut = arc.sweep();
    const double more = (cut - drawn) * radius;
    if (cut > drawn + std::numbers::pi)
        add(Kind::sweepCircle, arc.line, {lengthText(drawn * radius)});
    else if (cut < drawn - std::numbers::pi)
        add(Kind::circleLost, arc.line, {lengthText(cut * radius)});
    else if (std::fabs(more) > rounds)
        add(Kind::clampedArc, arc.line,
            {lengthText(std::fabs(more)), more > 0 ? "longer" : "shorter"});
}

bool PlanFindings::otherTool(const PlanGroup* group, const Difference& difference,
                             std::uint32_t line) {
    const std::string name = group == nullptr ? "the end" : nameOf(*group);
    if (isOtherValue(difference, MoveKind::tool)) {
        add(Kind::toolDiffers, line,
            {name, toolText(askedValue(difference, MoveKind::tool)),
             toolText(doneValue(difference, MoveKind::tool))});
        return true;
    }
    if (!isOtherValue(difference, MoveKind::spindleOn))
        return false;
    add(Kind::speedDiffers, line,
        {name, numberText(askedValue(difference, MoveKind::spindleOn), 0),
         numberText(doneValue(difference, MoveKind::spindleOn), 0)});
    return true;
}

void PlanFindings::otherWay(const PlanGroup* group, const Difference& difference,
                            std::uint32_t line) {
    if (otherTool(group, difference, line))
        return;
    if (isOneOther(difference, MoveKind::rapidAcross)) {
        const bool isHole = group != nullptr && group->isDrilled;
        add(Kind::place, line,
            {isHole ? "The hole" : "The start of the cut", pointText(difference.asked[0].to),
             pointText(endOf(*difference.done[0]))});
    } else if (isOneOther(difference, MoveKind::feedHeight) &&
               isSameNumber(difference.asked[0].z, difference.done[0]->to.z)) {
        otherFeed(difference.asked[0].feed, *difference.done[0]);
    } else {
        add(Kind::wayDiffers, line, {differenceText(difference)});
    }
}

void PlanFindings::otherPecks(const AskedItem& item, const Difference& difference, MoveSpan hole) {
    const std::uint32_t line = difference.done.empty()
                                   ? hole[std::min(difference.place, hole.size() - 1)]->line
                                   : difference.done.front()->line;
    const double asked = item.group->steps.back().z;
    const double done = deepest(hole);
    if (!isSameNumber(asked, done))
        add(done < asked ? Kind::deeperThanAsked : Kind::shallowerThanAsked, line,
            {heightText(done), nameOf(*item.group), heightText(asked), ""});
    else if (isOneOther(difference, MoveKind::feedHeight) &&
             isSameNumber(difference.asked[0].z, difference.done[0]->to.z))
        otherFeed(difference.asked[0].feed, *difference.done[0]);
    else if (holds(difference, MoveKind::dwell))
        add(Kind::dwellDiffers, line,
            {secondsText(item.group->dwells ? item.group->dwell : 0),
             std::isnan(doneValue(difference, MoveKind::dwell))
                 ? "not at all"
                 : secondsText(doneValue(difference, MoveKind::dwell))});
    else
        add(Kind::peckDiffers, line, {differenceText(difference)});
}

} // namespace torvik::check
