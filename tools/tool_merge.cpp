// SPDX-License-Identifier: MIT
#include "tools/tool_merge.h"

#include "base/picture.h"
#include "tools/tool_edits.h"
#include "tools/tool_record.h"

#include <algorithm>

namespace torvik {
namespace {

// What tells a tool from the others; a record that cannot be read is known by its text.
std::string keyOf(const Tool& tool) {
    return tool.strUnreadable ? "?" + *tool.strUnreadable : formatInteger(tool.intNumber);
}

using Places = std::map<std::string, std::ptrdiff_t>;

Places placesByTool(const OneBasedArray<Tool>& tools, std::ptrdiff_t count) {
    Places places;
    for (std::ptrdiff_t place = 1; place <= count; ++place)
        places.emplace(keyOf(tools[place]), place);
    return places;
}

// Another copy may have mended the record that stood there.
bool isMended(const ToolList& tools, std::ptrdiff_t place, const Places& theirs) {
    return place <= tools.gintToolCount && tools.gudtTools[place].strUnreadable &&
           !theirs.contains(keyOf(tools.gudtTools[place]));
}

// A record that cannot be read and was not there before may have been one of our tools.
bool hasNewFault(const ToolList& tools, const Places& theirs) {
    return std::any_of(theirs.begin(), theirs.end(), [&](const auto& tool) {
        return tool.first.starts_with('?') && !tools.storedTools.contains(tool.first);
    });
}

// What another copy has deleted.
void removeDeleted(ToolList& tools, const Places& theirs, TakenOver& taken) {
    if (hasNewFault(tools, theirs))
        return;
    for (std::int16_t place = tools.gintToolCount; place >= 1; --place) {
        const Tool& tool = tools.gudtTools[place];
        const auto before = tools.storedTools.find(keyOf(tool));
        if (before == tools.storedTools.end() || theirs.contains(before->first))
            continue;
        if (before->second == recordOf(tool)) {
            deleteTool(tools, place);
            taken.removed.push_back(place);
        } else {
            taken.overruled.push_back(tool.intNumber);
        }
    }
}

} // namespace

std::map<std::string, std::string> recordsByTool(const OneBasedArray<Tool>& tools) {
    std::map<std::string, std::string> records;
    for (const Tool& tool : tools)
        records.emplace(keyOf(tool), recordOf(tool));
    return records;
}

std::int16_t placeAfter(std::int16_t place, const std::vector<std::int16_t>& removed) {
    for (const std::int16_t gone : removed) {
        if (place == gone)
            return 0;
        if (place > gone)
            --place;
    }
    return place;
}

TakenOver takeOverTools(ToolList& tools, const OneBasedArray<Tool>& stored, bool isWhole) {
    TakenOver taken;
    const Places theirs = placesByTool(stored, stored.count());
    const Places ours = placesByTool(tools.gudtTools, tools.gintToolCount);
    for (std::ptrdiff_t place = 1; place <= stored.count(); ++place) {
        const Tool& theirTool = stored[place];
        const std::string key = keyOf(theirTool);
        const std::string record = recordOf(theirTool);
        const auto before = tools.storedTools.find(key);
        const bool isNew = before == tools.storedTools.end();
        if (theirs.at(key) != place || (!isNew && before->second == record))
            continue; // another tool of the same number, or nothing changed
        const auto own = ours.find(key);
        if (own == ours.end()) {
            if (!isNew)
                taken.overruled.push_back(theirTool.intNumber);
            else if (isMended(tools, place, theirs))
                tools.gudtTools[place] = theirTool;
            else if (!record.empty())
                addTool(tools, theirTool);
            continue;
        }
        Tool& ourTool = tools.gudtTools[own->second];
        const std::string ourRecord = recordOf(ourTool);
        if (!isNew && ourRecord == before->second)
            ourTool = theirTool;
        else if (ourRecord != record)
            taken.overruled.push_back(theirTool.intNumber);
    }
    if (isWhole)
        removeDeleted(tools, theirs, taken);
    return taken;
}

void takeOverTypes(ToolList& tools, const std::vector<std::string>& stored) {
    for (const std::string& type : stored) {
        const auto ours = tools.gstrUserToolTypes.items().first(
            static_cast<std::size_t>(tools.gintUserToolTypeCount));
        if (!type.empty() && !tools.storedTypes.contains(type) &&
            std::find(ours.begin(), ours.end(), type) == ours.end())
            addUserType(tools, type);
    }
}

} // namespace torvik
