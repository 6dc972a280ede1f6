// SPDX-License-Identifier: MIT
#include "preview/machined_path.h"

#include "base/numbers.h"
#include "base/picture.h"
#include "job/job.h"
#include "job/pens.h"
#include "tools/tool_list.h"

#include <algorithm>

namespace torvik {
namespace {

// The subscript in sngRadii of the first size that is the path's.
long circleSizeOf(const Pen& pen, const Path& path) {
    // The sizes are ascending: all before this one are too small.
    auto at = std::lower_bound(pen.sngRadii.begin(), pen.sngRadii.end(),
                               path.sngRadius - 2 * radiusTolerance);
    for (; at != pen.sngRadii.end() && *at <= path.sngRadius + 2 * radiusTolerance; ++at)
        if (singleDistance(*at, path.sngRadius) <= radiusTolerance)
            return at - pen.sngRadii.begin() + 1;
    throw InvalidCall("the " + pen.strColour + " circles have no size of " +
                      formatFixed(2.0 * path.sngRadius, 1) + " mm");
}

[[noreturn]] void raiseNoTool(const Pen& pen, const Path& path) {
    throw InvalidCall(
        "no tool is chosen for the " + pen.strColour +
        (pen.blnDrill ? " holes of " + formatFixed(2.0 * path.sngRadius, 1) + " mm" : " lines"));
}

} // namespace

std::int16_t settingsOf(const Job& job, const Path& path) {
    const Pen& pen = job.gudtPens[path.intPen];
    if (!pen.blnDrill)
        return pen.intSettings;
    return toInt16(pen.intSettings + static_cast<double>(circleSizeOf(pen, path)));
}

MachinedPath machinedPath(const Job& job, const ToolList& tools, const Path& path) {
    const Pen& pen = job.gudtPens[path.intPen];
    const Settings& settings = job.gudtSettings[settingsOf(job, path)];
    if (settings.intTool < 1 || settings.intTool > tools.gintToolCount)
        raiseNoTool(pen, path);
    return {settings.sngDepth, toolAt(tools, settings.intTool).sngDiameter, pen.blnDrill};
}

bool sortPathsByDepth(Job& job, Logger& logger) {
    for (Path& path : job.gudtPaths)
        path.sngSortKey = job.gudtSettings[settingsOf(job, path)].sngDepth;
    return SortPaths(job, logger);
}

} // namespace torvik
