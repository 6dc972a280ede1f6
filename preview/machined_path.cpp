// SPDX-License-Identifier: MIT
#include "preview/machined_path.h"

#include "base/numbers.h"
#include "base/picture.h"
#include "job/job.h"
#include "job/machined_groups.h"
#include "job/pens.h"
#include "tools/tool_list.h"

#include <algorithm>

namespace torvik {
namespace {

// The subscript in sngRadii of the first size that is the path's, 0 for a pen that is cut.
std::int16_t holeSizeOf(const Pen& pen, const Path& path) {
    if (!pen.blnDrill)
        return 0;
    // The sizes are ascending: all before this one are too small.
    auto at = std::lower_bound(pen.sngRadii.begin(), pen.sngRadii.end(),
                               path.sngRadius - 2 * radiusTolerance);
    for (; at != pen.sngRadii.end() && *at <= path.sngRadius + 2 * radiusTolerance; ++at)
        if (singleDistance(*at, path.sngRadius) <= radiusTolerance)
            return static_cast<std::int16_t>(at - pen.sngRadii.begin() + 1);
    throw InvalidCall("the " + pen.strColour + " circles have no size of " +
                      formatFixed(2.0 * path.sngRadius, 1) + " mm");
}

const Settings& settingsAt(const Job& job, const Pen& pen, std::int16_t holeSize) {
    return job.answers.gudtSettings[pen.intSettings + holeSize];
}

} // namespace

const Settings& settingsOf(const Job& job, const Path& path) {
    const Pen& pen = job.answers.gudtPens[path.intPen];
    return settingsAt(job, pen, holeSizeOf(pen, path));
}

MachinedPath machinedPath(const Job& job, const ToolList& tools, const Path& path) {
    const Pen& pen = job.answers.gudtPens[path.intPen];
    const std::int16_t holeSize = holeSizeOf(pen, path);
    const Settings& settings = settingsAt(job, pen, holeSize);
    if (settings.intTool < 1 || settings.intTool > tools.gintToolCount)
        throw InvalidCall(groupText(pen, holeSize) + " have no tool");
    return {settings.sngDepth, toolAt(tools, settings.intTool).sngDiameter, holeSize > 0};
}

bool sortPathsByDepth(Job& job, Logger& logger) {
    for (Path& path : job.drawing.gudtPaths)
        path.sngSortKey = settingsOf(job, path).sngDepth;
    return SortPaths(job, logger);
}

} // namespace torvik
