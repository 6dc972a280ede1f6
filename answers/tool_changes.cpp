// SPDX-License-Identifier: MIT
#include "answers/tool_changes.h"

#include "job/hole_sizes.h"
#include "tools/tool_merge.h"

namespace torvik {
namespace {

int toolNumber(const ToolList& tools, std::int16_t place) {
    return isInList(tools, place) ? tools.gudtTools[place].intNumber : 0;
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

std::vector<ToolsOfGroups::Group> ToolsOfGroups::changedSince(const Job& job, const ToolList& tools,
                                                              std::int16_t passedOver) const {
    const std::vector<int> now = numbersOf(job, tools);
    const auto changed = [&](int settings) {
        const auto i = static_cast<std::size_t>(settings - 1);
        return settings != passedOver && i < m_numbers.size() && i < now.size() &&
               m_numbers[i] != now[i];
    };
    std::vector<Group> groups;
    // Also what is not in force now: it is there again when the user chooses anew.
    for (std::int16_t number = 1; number <= penCount; ++number) {
        const Pen& pen = job.answers.gudtPens[number];
        for (std::int16_t k = 0; pen.blnUsed && k <= pen.intRadiusCount; ++k)
            if (changed(settingsOfSize(pen, k)))
                groups.push_back({number, k});
    }
    return groups;
}

void ToolsOfGroups::follow(Job& job, const std::vector<std::int16_t>& removed) const {
    auto number = m_numbers.begin();
    for (Settings& settings : job.answers.gudtSettings) {
        const int before = number == m_numbers.end() ? 0 : *number++;
        const std::int16_t place = placeAfter(settings.intTool, removed);
        if (settings.intTool > 0 && place == 0) {
            settings.blnComplete = false;
            settings.intToolGone = static_cast<std::int16_t>(before);
        }
        settings.intTool = place;
    }
}

} // namespace torvik
