// SPDX-License-Identifier: MIT
#include "base/text.h"
#include "check/move.h"
#include "check/sense/group_sense.h"

#include <algorithm>

namespace torvik::check {
namespace {

constexpr double reachedOver = 1.5 * lengthStep;

double sizeOf(std::string_view text) {
    std::string_view rest = trimBlanks(text);
    return takeNumber(rest);
}

// The low side and the high one.
void findSides(const char* axis, double low, double high, double size, Findings& findings) {
    const auto add = [&](double place) {
        findings.add(Kind::billetOutside, 0, {axis + lengthText(place), axis + lengthText(size)});
    };
    if (std::isnan(size))
        return;
    if (low < -reachedOver)
        add(low);
    if (high > size + reachedOver)
        add(high);
}

} // namespace

Reach reachOf(const Job& job, const ToolList& tools) {
    Reach reach;
    for (const AskedGroup& asked : askedGroups(job, tools, orderOf(job.answers))) {
        if (!asked.paths.empty() && asked.settings.sngDepth > reach.deepest) {
            reach.deepest = asked.settings.sngDepth;
            reach.deepestGroup = asked.group;
        }
        for (const std::int16_t subscript : asked.paths) {
            const Path& path = job.drawing.gudtPaths[subscript];
            if (asked.isDrilled())
                includePoint(reach.area, path.sngCentreX, path.sngCentreY);
            else
                includePath(reach.area, path);
        }
    }
    return reach;
}

Billet billetOf(std::string_view length, std::string_view width, std::string_view depth) {
    return {sizeOf(length), sizeOf(width), sizeOf(depth)};
}

void findBilletSense(const Job& job, const Reach& reach, const Billet& billet, Findings& findings) {
    if (reach.deepest > 0)
        findDepthSense(job, reach.deepestGroup,
                       job.answers.gudtSettings[reach.deepestGroup.settings], billet, findings);
    findAreaSense(reach, billet, findings);
}

void findAreaSense(const Reach& reach, const Billet& billet, Findings& findings) {
    if (reach.area.empty())
        return;
    findSides("X", reach.area.minX, reach.area.maxX, billet.length, findings);
    findSides("Y", reach.area.minY, reach.area.maxY, billet.width, findings);
}

} // namespace torvik::check
