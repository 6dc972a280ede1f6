// SPDX-License-Identifier: MIT
#include "trial/tried_groups.h"

#include "base/picture.h"
#include "check/time/program_time.h"
#include "gcode/path_index.h"
#include "gcode/program_size.h"
#include "tools/tool_list.h"

#include <algorithm>

namespace torvik {
namespace {

std::string nameOf(const Pen& pen, std::int16_t radius) {
    if (radius == 0)
        return pen.strColour + " – cut";
    return pen.strColour + " – " + formatFixed(2.0 * pen.sngRadii[radius], 1) + " mm holes";
}

std::string toolOf(const ToolList& tools, std::int16_t place) {
    const Tool* const tool = findTool(tools, place);
    if (tool == nullptr)
        return {};
    return "T" + formatInteger(tool->intNumber) + " " + formatFixed(tool->sngDiameter, 1) + " mm " +
           tool->strType;
}

} // namespace

std::vector<TriedGroup> triedGroups(const Job& job, const ToolList& tools, const ProgramSize& size,
                                    const check::Moves& moves,
                                    const std::vector<check::MoveTime>& times) {
    std::vector<TriedGroup> groups;
    PathIndex paths(job);
    for (std::size_t i = 0; i < size.groups.size(); ++i) {
        const auto& [group, firstLine, steps] = size.groups[i];
        const bool isLast = i + 1 == size.groups.size();
        const std::int64_t end = isLast ? size.lines + 1 : size.groups[i + 1].firstLine;
        const Pen& pen = job.answers.gudtPens[group.pen];
        const Settings& settings = job.answers.gudtSettings[group.settings];
        const auto holes = group.radius == 0
                               ? 0
                               : std::ssize(paths.ofRadius(group.pen, pen.sngRadii[group.radius]));
        groups.push_back({group, nameOf(pen, group.radius), toolOf(tools, settings.intTool),
                          settings.sngDepth, steps / std::max<std::int64_t>(holes, 1), holes,
                          static_cast<std::uint32_t>(firstLine),
                          check::minutesOfLines(moves, times, static_cast<std::uint32_t>(firstLine),
                                                static_cast<std::uint32_t>(end))});
    }
    return groups;
}

} // namespace torvik
