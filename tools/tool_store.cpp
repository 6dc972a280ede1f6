// SPDX-License-Identifier: MIT
#include "tools/tool_store.h"

#include "base/error_trap.h"
#include "base/picture.h"
#include "tools/stored_entries.h"
#include "tools/tool_record.h"

namespace torvik {
namespace {

constexpr std::string_view module = "modHpgl";
constexpr std::string_view toolCount = "ToolCount";
constexpr std::string_view toolKind = "Tool";
constexpr std::string_view typeCount = "ToolTypes";
constexpr std::string_view typeKind = "ToolType";

bool isReadableLength(const std::string& text) {
    return text.size() <= RegistryReader::maxValueBytes;
}

// What a reading makes of a stored text; the fault says why it is no tool.
Tool readTool(std::optional<std::string> text, std::string& fault) {
    try {
        return toolOfRecord(text && isReadableLength(*text) ? *text : "");
    } catch (const RunTimeError& error) {
        fault = error.what();
        Tool none;
        none.strUnreadable = std::move(text).value_or("");
        return none;
    }
}

struct StoredTools {
    OneBasedArray<Tool> tools;
    std::string fault; // of the count and the records, empty for none
    bool isWhole;      // a count is stored, and right
};

std::string recordsFault(const std::string& first, int count) {
    if (count == 1)
        return first + ". Edit or delete it in the tool list";
    return first + "; " + formatInteger(count) +
           " tools in all cannot be read. Edit or delete them in the tool list";
}

StoredTools readTools(const RegistryReader& registry) {
    StoredEntries entries = readEntries(registry, toolCount, toolKind);
    StoredTools stored{{}, {}, registry.wholeText(toolCount) && entries.fault.empty()};
    std::string first;
    int unreadable = 0;
    for (auto& text : entries.texts) {
        std::string fault;
        stored.tools.append(readTool(std::move(text), fault));
        if (!fault.empty() && ++unreadable == 1)
            first = entryName(toolKind, static_cast<int>(stored.tools.count())) + ": " + fault;
    }
    stored.fault = std::move(entries.fault);
    if (unreadable > 0)
        stored.fault += (stored.fault.empty() ? "" : ". ") + recordsFault(first, unreadable);
    return stored;
}

// A type of another program may be longer than one of ours: it is kept as it is.
std::vector<std::string> typesOf(const StoredEntries& entries) {
    std::vector<std::string> types;
    for (const auto& text : entries.texts)
        types.push_back(text.value_or(""));
    return types;
}

// A record that could not be read is written only where its place has changed.
void putTools(const ToolList& tools, Registry& registry, bool isOpen) {
    registry.RegistryValuePut(toolCount, formatInteger(tools.gintToolCount));
    for (int place = 1; place <= tools.gintToolCount; ++place) {
        const Tool& tool = tools.gudtTools[place];
        const std::string name = entryName(toolKind, place);
        if (!tool.strUnreadable ||
            (isOpen && registry.wholeText(name).value_or("") != *tool.strUnreadable))
            registry.RegistryValuePut(name, recordOf(tool));
    }
}

// The list as the next reading will find it: a "|" in a type shifts the fields.
OneBasedArray<Tool> asStored(const ToolList& tools) {
    OneBasedArray<Tool> stored;
    std::string fault;
    for (int place = 1; place <= tools.gintToolCount; ++place)
        stored.append(readTool(recordOf(tools.gudtTools[place]), fault));
    return stored;
}

} // namespace

void ToolDataLoad(ToolList& tools, const RegistryReader& registry, Logger& logger) {
    constexpr std::string_view procedure = "ToolDataLoad";
    withErrorTrap(logger, {procedure, module}, [&] {
        StoredTools stored = readTools(registry);
        tools.gudtTools = std::move(stored.tools);
        tools.gintToolCount = static_cast<std::int16_t>(tools.gudtTools.count());
        tools.storedTools = recordsByTool(tools.gudtTools);
        if (!stored.fault.empty())
            logger.reportError(procedure, module, stored.fault);
    });
}

TakenOver ToolDataSave(ToolList& tools, Registry& registry, Logger& logger) {
    TakenOver taken;
    tools.toolsUnsaved = true;
    withErrorTrap(logger, {"ToolDataSave", module}, [&] {
        Registry::Batch together(registry);
        if (together.isOpen()) {
            const StoredTools stored = readTools(registry);
            taken = takeOverTools(tools, stored.tools, stored.isWhole);
        }
        putTools(tools, registry, together.isOpen());
        tools.toolsUnsaved = !together.save();
        if (!tools.toolsUnsaved)
            tools.storedTools = recordsByTool(asStored(tools));
    });
    return taken;
}

void ToolTypeUserLoad(ToolList& tools, const RegistryReader& registry, Logger& logger) {
    constexpr std::string_view procedure = "ToolTypeUserLoad";
    withErrorTrap(logger, {procedure, module}, [&] {
        const StoredEntries entries = readEntries(registry, typeCount, typeKind);
        tools.gstrUserToolTypes.erase();
        for (std::string& type : typesOf(entries))
            tools.gstrUserToolTypes.append(std::move(type));
        tools.gintUserToolTypeCount = static_cast<std::int16_t>(tools.gstrUserToolTypes.count());
        tools.storedTypes = {tools.gstrUserToolTypes.begin(), tools.gstrUserToolTypes.end()};
        if (!entries.fault.empty())
            logger.reportError(procedure, module, entries.fault);
    });
}

void ToolTypeUserSave(ToolList& tools, Registry& registry, Logger& logger) {
    tools.typesUnsaved = true;
    withErrorTrap(logger, {"ToolTypeUserSave", module}, [&] {
        Registry::Batch together(registry);
        if (together.isOpen())
            takeOverTypes(tools, typesOf(readEntries(registry, typeCount, typeKind)));
        registry.RegistryValuePut(typeCount, formatInteger(tools.gintUserToolTypeCount));
        for (int place = 1; place <= tools.gintUserToolTypeCount; ++place)
            registry.RegistryValuePut(entryName(typeKind, place), tools.gstrUserToolTypes[place]);
        tools.typesUnsaved = !together.save();
    });
}

} // namespace torvik
