// SPDX-License-Identifier: MIT
#include "check/sense/asked.h"

#include "job/pens.h"
#include "tools/tool_list.h"

namespace torvik::check {
namespace {

using PathsOfGroups = std::vector<std::vector<std::int16_t>>; // by settings group

// One walk through the drawing, however many groups there are.
PathsOfGroups pathsOfGroups(const Job& job) {
    PathsOfGroups paths(static_cast<std::size_t>(job.answers.gudtSettings.count()) + 1);
    const auto add = [&](std::int16_t settings, std::int16_t path) {
        if (settings >= 0 && static_cast<std::size_t>(settings) < paths.size())
            paths[static_cast<std::size_t>(settings)].push_back(path);
    };
    std::int16_t subscript = 0;
    for (const Path& path : job.drawing.gudtPaths) {
        ++subscript;
        const Pen& pen = job.answers.gudtPens[path.intPen];
        if (pen.blnDrill)
            visitDrilledSizes(pen, path.sngRadius, [&](std::int16_t size) {
                add(settingsOfSize(pen, size), subscript);
            });
        else
            add(pen.intSettings, subscript);
    }
    return paths;
}

} // namespace

std::vector<AskedGroup> askedGroups(const Job& job, const ToolList& tools, PenOrder order) {
    PathsOfGroups paths = pathsOfGroups(job);
    std::vector<AskedGroup> asked;
    visitAsked(job, order, [&](const MachinedGroup& group, const Settings& settings) {
        asked.push_back({group, settings, toolOf(settings, tools),
                         std::move(paths[static_cast<std::size_t>(group.settings)])});
    });
    return asked;
}

std::vector<std::int16_t> orderOf(const Answers& answers) {
    if (answers.gblnOrderSet)
        return {answers.gintOrder.begin(), answers.gintOrder.end()};
    std::vector<std::int16_t> order;
    for (std::int16_t pen = 1; pen <= penCount; ++pen)
        if (isMachined(answers, pen))
            order.push_back(pen);
    return order;
}

const Tool* toolOf(const Settings& settings, const ToolList& tools) {
    return findTool(tools, settings.intTool);
}

std::string nameOf(const Job& job, const MachinedGroup& group) {
    return groupText(job.answers.gudtPens[group.pen], group.radius);
}

} // namespace torvik::check
