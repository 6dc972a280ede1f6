// SPDX-License-Identifier: MIT
#include "answers/tool_changes.h"

#include "job/machined_groups.h"

namespace torvik {
namespace {

int toolNumber(const ToolList& tools, std::int16_t place) {
    return place >= 1 && place <= tools.gintToolCount && place <= tools.gudtTools.count()
               ? tools.gudtTools[place].intNumber
               : 0;
}

std::vector<int> numbersOf(const Job& job, const ToolList& tools) {
    std::vector<int> numbers;
    for (const Settings& settings : job.answers.gudtSettings)
        numbers.push_back(toolNumber(tools, settings.intTool));
    return numbers;
}

} // namespace

ToolsOfGroups::ToolsOfGroups(const Job& job, const ToolList& tools)
    : m_numbers(numbersOf(job, tools)) {}

std::vector<std::string> ToolsOfGroups::changedSince(const Job& job, const ToolList& tools,
                                                     std::int16_t passedOver) const {
    const std::vector<int> now = numbersOf(job, tools);
    const auto changed = [&](int settings) {
        const auto i = static_cast<std::size_t>(settings - 1);
        return settings != passedOver && i < m_numbers.size() && i < now.size() &&
               m_numbers[i] != now[i];
    };
    std::vector<std::string> texts;
    // Also what is not in force now: it is there again when the user chooses anew.
    for (const Pen& pen : job.answers.gudtPens)
        for (std::int16_t k = 0; pen.blnUsed && k <= pen.intRadiusCount; ++k)
            if (changed(pen.intSettings + k))
                texts.push_back(groupText(pen, k));
    return texts;
}

} // namespace torvik
