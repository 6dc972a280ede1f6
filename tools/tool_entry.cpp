// SPDX-License-Identifier: MIT
#include "tools/tool_entry.h"

#include "base/numbers.h"
#include "base/picture.h"
#include "tools/registry.h"
#include "tools/tool_edits.h"

#include <cmath>
#include <limits>

namespace torvik {
namespace {

constexpr const char* numberTitle = "Tool number";
constexpr const char* typeTitle = "Tool type";
constexpr const char* diameterTitle = "Tool diameter";

// The number of a text; infinite where no double holds it, so that it is refused by name.
double numberIn(const std::string& text) {
    try {
        return leadingNumber(text);
    } catch (const Overflow&) {
        return std::numeric_limits<double>::infinity();
    }
}

std::optional<std::string> numberProblem(const std::string& text) {
    const double number = numberIn(text);
    if (number > std::numeric_limits<std::int16_t>::max())
        return "Tool number " + text + " is too large\nPlease enter a number up to 32767";
    if (number != std::trunc(number))
        return "Tool number " + text + " is not a whole number\nPlease enter a different number";
    return {};
}

std::optional<std::string> diameterProblem(const std::string& text) {
    const double diameter = numberIn(text);
    if (diameter > std::numeric_limits<float>::max())
        return "The tool diameter is too large to be stored\nPlease enter a smaller diameter";
    if (diameter < 0)
        return "The tool diameter may not be negative\nPlease enter a different diameter";
    return {};
}

// A longer record could be written but not read again.
bool fitsRecord(const Tool& tool) {
    constexpr std::size_t separators = 3;
    return formatInteger(tool.intNumber).size() + tool.strType.size() +
               formatFixed(tool.sngDiameter, 3).size() + formatFixed(tool.sngReserved, 3).size() +
               separators <=
           Registry::maxValueBytes;
}

template <typename Match>
bool hasOther(const ToolList& tools, std::int16_t ownPlace, Match match) {
    for (int place = 1; place <= loadedToolCount(tools); ++place)
        if (place != ownPlace && match(tools.gudtTools[place]))
            return true;
    return false;
}

} // namespace

bool isToolComplete(const ToolEntry& entry) {
    return numberIn(entry.number) > 0 && !entry.type.empty() && !entry.diameter.empty();
}

std::optional<ToolFault> toolFault(const ToolList& tools, const ToolEntry& entry,
                                   std::int16_t ownPlace) {
    if (const auto problem = numberProblem(entry.number))
        return ToolFault{ToolField::number, *problem, numberTitle};
    const double number = numberIn(entry.number);
    if (hasOther(tools, ownPlace, [&](const Tool& tool) { return tool.intNumber == number; }))
        return ToolFault{ToolField::number,
                         "Tool number " + entry.number +
                             " is already in use\nPlease enter a different number",
                         numberTitle};
    if (const auto problem = diameterProblem(entry.diameter))
        return ToolFault{ToolField::diameter, *problem, diameterTitle};
    const bool known = ownPlace >= 1 && ownPlace <= loadedToolCount(tools);
    const Tool typed =
        toolOf(entry, known ? tools.gudtTools[ownPlace].sngReserved : Tool::newToolReserved);
    if (hasOther(tools, ownPlace, [&](const Tool& tool) {
            return tool.strType == typed.strType && tool.sngDiameter == typed.sngDiameter;
        }))
        return ToolFault{ToolField::diameter,
                         "You already have a tool of type " + entry.type + "\nwith diameter " +
                             entry.diameter + "mm\nPlease change your selection",
                         typeTitle};
    if (!fitsRecord(typed))
        return ToolFault{ToolField::diameter,
                         "The tool type and the tool diameter are together too long to be stored\n"
                         "Please change your selection",
                         diameterTitle};
    return {};
}

Tool toolOf(const ToolEntry& entry, float reserved) {
    return {toInt16(leadingNumber(entry.number)), entry.type,
            toSingle(leadingNumber(entry.diameter)), reserved};
}

} // namespace torvik
