// SPDX-License-Identifier: MIT
#include "prepare/svg/cascade.h"

#include "base/digits.h"
#include "prepare/svg/text_reader.h"

#include <algorithm>

namespace torvik::svg {
namespace {

// In the order of Property.
constexpr std::array<std::string_view, propertyCount> propertyNames{
    "clip-path",      "color",        "display",   "fill",
    "fill-opacity",   "filter",       "font-size", "marker-end",
    "marker-mid",     "marker-start", "mask",      "opacity",
    "overflow",       "stop-color",   "stroke",    "stroke-dasharray",
    "stroke-opacity", "text-anchor",  "transform", "visibility"};

// The size in "italic 12px/1.5 Arial".
std::string_view sizeOfFont(std::string_view font) {
    TextReader reader(font);
    for (reader.skipBlanks(); !reader.atEnd(); reader.skipBlanks()) {
        const std::string_view rest = reader.rest();
        const std::size_t end = std::min(rest.find_first_of(" /\t\r\n"), rest.size());
        const bool isSize = isDigit(rest.front()) || rest.front() == '.';
        // "700" is a weight: sizes have units.
        if (isSize && rest.substr(0, end).find_first_not_of("0123456789.") < end)
            return rest.substr(0, end);
        reader.skip(std::max<std::size_t>(end, 1));
    }
    return {};
}

void apply(PropertyValues& values, const std::vector<Declaration>& declarations, bool isImportant) {
    for (const Declaration& one : declarations)
        if (one.isImportant == isImportant)
            values.set(one.name, one.value);
}

} // namespace

void PropertyValues::set(std::string_view name, std::string_view value) {
    const auto* const found = std::lower_bound(propertyNames.begin(), propertyNames.end(), name);
    if (found != propertyNames.end() && *found == name) {
        m_values[static_cast<std::size_t>(found - propertyNames.begin())] = value;
    } else if (name == "marker") {
        set("marker-start", value);
        set("marker-mid", value);
        set("marker-end", value);
    } else if (name == "font") {
        set("font-size", sizeOfFont(value));
    }
}

PropertyValues cascade(pugi::xml_node node, const StyleSheet& sheet) {
    PropertyValues values;
    for (const pugi::xml_attribute attribute : node.attributes())
        values.set(attribute.name(), attribute.value());
    const auto blocks = sheet.declarationsFor(node);
    const auto own = declarationsOf(node.attribute("style").value());
    for (const bool isImportant : {false, true}) {
        for (const auto* const block : blocks)
            apply(values, *block, isImportant);
        apply(values, own, isImportant);
    }
    return values;
}

} // namespace torvik::svg
