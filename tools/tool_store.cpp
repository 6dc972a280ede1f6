// SPDX-License-Identifier: MIT
#include "tools/tool_store.h"

#include "base/error_trap.h"
#include "base/numbers.h"
#include "base/picture.h"

namespace torvik {
namespace {

constexpr std::string_view module = "modHpgl";
constexpr char separator = '|';

std::string entryName(std::string_view kind, int position) {
    return std::string(kind) + formatInteger(position, 2);
}

std::int16_t readCount(const RegistryReader& registry, std::string_view name) {
    return toInt16(leadingNumber(registry.strRegistryValueGet(name, "0")));
}

// Takes the part before the first separator off the text.
std::string_view takeField(std::string_view& text) {
    const auto end = text.find(separator);
    if (end == std::string_view::npos)
        throw InvalidCall(
            "the tool's record is missing, too long, or lacks one of its three \"|\"");
    const std::string_view field = text.substr(0, end);
    text.remove_prefix(end + 1);
    return field;
}

// Fills the tool field by field, so that those before a broken one keep what was read.
void readRecord(Tool& tool, std::string_view record) {
    tool.intNumber = toInt16(leadingNumber(takeField(record)));
    tool.strType = takeField(record);
    tool.sngDiameter = toSingle(leadingNumber(takeField(record)));
    tool.sngReserved = toSingle(leadingNumber(record));
}

std::string recordOf(const Tool& tool) {
    return formatInteger(tool.intNumber) + separator + tool.strType + separator +
           formatFixed(tool.sngDiameter, 3) + separator + formatFixed(tool.sngReserved, 3);
}

} // namespace

void ToolDataLoad(ToolList& tools, const RegistryReader& registry, Logger& logger) {
    withErrorTrap(logger, {"ToolDataLoad", module}, [&] {
        tools.gudtTools.erase();
        tools.gintToolCount = 0;
        tools.gintToolCount = readCount(registry, "ToolCount");
        // Grown one by one: a damaged count must not cost memory for tools that are not there.
        for (int i = 1; i <= tools.gintToolCount; ++i) {
            tools.gudtTools.append({0, {}, 0, 0});
            const std::string name = entryName("Tool", i);
            try {
                readRecord(tools.gudtTools[i], registry.strRegistryValueGet(name, ""));
            } catch (const RunTimeError& error) {
                throw RunTimeError(name + ": " + error.what());
            }
        }
    });
}

void ToolDataSave(const ToolList& tools, Registry& registry, Logger& logger) {
    withErrorTrap(logger, {"ToolDataSave", module}, [&] {
        const Registry::Batch together(registry);
        registry.RegistryValuePut("ToolCount", formatInteger(tools.gintToolCount));
        for (int i = 1; i <= tools.gintToolCount; ++i)
            registry.RegistryValuePut(entryName("Tool", i), recordOf(tools.gudtTools[i]));
    });
}

void ToolTypeUserLoad(ToolList& tools, const RegistryReader& registry, Logger& logger) {
    withErrorTrap(logger, {"ToolTypeUserLoad", module}, [&] {
        tools.gstrUserToolTypes.erase();
        tools.gintUserToolTypeCount = 0;
        tools.gintUserToolTypeCount = readCount(registry, "ToolTypes");
        for (int i = 1; i <= tools.gintUserToolTypeCount; ++i)
            tools.gstrUserToolTypes.append(
                registry.strRegistryValueGet(entryName("ToolType", i), ""));
    });
}

void ToolTypeUserSave(const ToolList& tools, Registry& registry, Logger& logger) {
    withErrorTrap(logger, {"ToolTypeUserSave", module}, [&] {
        const Registry::Batch together(registry);
        registry.RegistryValuePut("ToolTypes", formatInteger(tools.gintUserToolTypeCount));
        for (int i = 1; i <= tools.gintUserToolTypeCount; ++i)
            registry.RegistryValuePut(entryName("ToolType", i), tools.gstrUserToolTypes[i]);
    });
}

} // namespace torvik
