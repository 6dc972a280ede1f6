// SPDX-License-Identifier: MIT
#include "preview/machined_path.h"

#include "base/picture.h"
#include "job/hole_sizes.h"
#include "job/job.h"
#include "job/machined_groups.h"
#include "job/sort_paths.h"
#include "tools/tool_list.h"

#include <algorithm>
#include <tuple>

namespace torvik {
namespace {

// With the given hole size, 0 where the pen is cut.
Work workWith(const Answers& answers, const ToolList& tools, const Pen& pen, std::int16_t size) {
    const Settings& settings = answers.gudtSettings[settingsOfSize(pen, size)];
    if (!isInList(tools, settings.intTool))
        throw InvalidCall(groupText(pen, size) + " have no tool");
    return {settings.sngDepth, toolAt(tools, settings.intTool).sngDiameter, size > 0};
}

// Leaves out what a deeper and no narrower drill takes away.
std::vector<Work> thatShow(std::vector<Work> works) {
    std::sort(works.begin(), works.end(), [](const Work& a, const Work& b) {
        return std::tie(a.sngDepth, a.sngDiameter) > std::tie(b.sngDepth, b.sngDiameter);
    });
    std::vector<Work> shown;
    for (const Work& work : works)
        if (shown.empty() || work.sngDiameter > shown.back().sngDiameter)
            shown.push_back(work);
    std::reverse(shown.begin(), shown.end());
    return shown;
}

} // namespace

std::vector<Work> workOn(const Answers& answers, const ToolList& tools, const Path& path) {
    const Pen& pen = answers.gudtPens[path.intPen];
    if (pen.blnOmit)
        return {};
    if (!pen.blnDrill)
        return {workWith(answers, tools, pen, 0)};
    std::vector<Work> works;
    visitDrilledSizes(pen, path.sngRadius, [&](std::int16_t size) {
        works.push_back(workWith(answers, tools, pen, size));
    });
    if (works.empty())
        throw InvalidCall("the " + pen.strColour + " circles have no size of " +
                          formatFixed(2.0 * path.sngRadius, 1) + " mm");
    return thatShow(std::move(works));
}

std::vector<WorkOnPath> worksByDepth(const Drawing& drawing, const Answers& answers,
                                     const ToolList& tools) {
    std::vector<WorkOnPath> works;
    std::vector<float> depths;
    for (const Path& path : drawing.gudtPaths)
        for (const Work& work : workOn(answers, tools, path)) {
            works.push_back({path, work});
            depths.push_back(work.sngDepth);
        }
    std::vector<WorkOnPath> sorted;
    sorted.reserve(works.size());
    for (const std::size_t place : SortPaths(depths))
        sorted.push_back(works[place]);
    return sorted;
}

} // namespace torvik
