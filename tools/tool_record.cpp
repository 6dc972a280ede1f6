// SPDX-License-Identifier: MIT
#include "tools/tool_record.h"

#include "base/numbers.h"
#include "base/picture.h"

#include <algorithm>

namespace torvik {
namespace {

constexpr char separator = '|';

// Takes the part before the first separator off the text.
std::string_view takeField(std::string_view& text) {
    const std::string_view field = text.substr(0, text.find(separator));
    text.remove_prefix(std::min(field.size() + 1, text.size()));
    return field;
}

} // namespace

Tool toolOfRecord(std::string_view record) {
    if (std::count(record.begin(), record.end(), separator) < 3)
        throw InvalidCall(
            "the tool's record is missing, too long, or lacks one of its three \"|\"");
    Tool tool;
    tool.intNumber = toInt16(leadingNumber(takeField(record)));
    tool.strType = takeField(record);
    tool.sngDiameter = toSingle(leadingNumber(takeField(record)));
    tool.sngReserved = toSingle(leadingNumber(record));
    return tool;
}

std::string recordOf(const Tool& tool) {
    if (tool.strUnreadable)
        return *tool.strUnreadable;
    return formatInteger(tool.intNumber) + separator + tool.strType + separator +
           formatFixed(tool.sngDiameter, 3) + separator + formatFixed(tool.sngReserved, 3);
}

ToolEntry entryOf(const Tool& tool) {
    if (!tool.strUnreadable)
        return {formatInteger(tool.intNumber), tool.strType, formatFixed(tool.sngDiameter, 3)};
    std::string_view record = *tool.strUnreadable;
    ToolEntry entry;
    entry.number = takeField(record);
    entry.type = takeField(record);
    entry.diameter = takeField(record);
    return entry;
}

} // namespace torvik
