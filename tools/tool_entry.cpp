// SPDX-License-Identifier: MIT
#include "tools/tool_entry.h"

#include "base/numbers.h"
#include "base/text.h"
#include "tools/registry.h"
#include "tools/tool_record.h"

#include <cmath>
#include <limits>

namespace torvik {
namespace {

// The number of a text; infinite where no double holds it, so that it is refused by name.
double numberIn(const std::string& text) {
    try {
        return leadingNumber(text);
    } catch (const Overflow&) {
        return std::numeric_limits<double>::infinity();
    }
}

// A longer record could be written but not read again.
bool fitsRecord(const Tool& tool) {
    return recordOf(tool).size() <= Registry::maxValueBytes;
}

template <typename Match>
bool hasOther(const ToolList& tools, std::int16_t ownPlace, Match match) {
    for (int place = 1; place <= tools.gintToolCount; ++place)
        if (place != ownPlace && !tools.gudtTools[place].strUnreadable &&
            match(tools.gudtTools[place]))
            return true;
    return false;
}

} // namespace

bool isToolComplete(const ToolEntry& entry) {
    return numberIn(entry.number) > 0 && !entry.type.empty() && !entry.diameter.empty();
}

std::optional<ToolFault> toolFault(const ToolList& tools, const ToolEntry& entry,
                                   std::int16_t ownPlace) {
    const double number = numberIn(entry.number);
    if (number > std::numeric_limits<std::int16_t>::max())
        return ToolFault::numberTooLarge;
    if (number != std::trunc(number) || !isNumber(trimBlanks(entry.number)))
        return ToolFault::numberNotWhole;
    if (hasOther(tools, ownPlace, [&](const Tool& tool) { return tool.intNumber == number; }))
        return ToolFault::numberTaken;
    if (!isNumber(trimBlanks(entry.diameter)))
        return ToolFault::diameterNotNumber;
    const double diameter = numberIn(entry.diameter);
    if (diameter > std::numeric_limits<float>::max())
        return ToolFault::diameterTooLarge;
    if (diameter < 0)
        return ToolFault::diameterNegative;
    const bool known = isInList(tools, ownPlace);
    const Tool typed =
        toolOf(entry, known ? tools.gudtTools[ownPlace].sngReserved : Tool::newToolReserved);
    if (hasOther(tools, ownPlace, [&](const Tool& tool) {
            return tool.strType == typed.strType && tool.sngDiameter == typed.sngDiameter;
        }))
        return ToolFault::sameTool;
    if (!fitsRecord(typed))
        return ToolFault::recordTooLong;
    return {};
}

Tool toolOf(const ToolEntry& entry, float reserved) {
    return {toInt16(leadingNumber(entry.number)), entry.type,
            toSingle(leadingNumber(entry.diameter)), reserved};
}

} // namespace torvik
