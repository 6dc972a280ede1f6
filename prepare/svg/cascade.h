// SPDX-License-Identifier: MIT
// Which value each property of an element has by its own attributes, the style sheets and its
// `style`. What it takes from the element around it is told in style.h.
#pragma once

#include "prepare/svg/css_sheet.h"

#include <array>

namespace torvik::svg {

enum class Property : std::uint8_t {
    clipPath,
    color,
    display,
    fill,
    fillOpacity,
    filter,
    fontSize,
    markerEnd,
    markerMid,
    markerStart,
    mask,
    opacity,
    overflow,
    stopColor,
    stroke,
    strokeDashes,
    strokeOpacity,
    textAnchor,
    transform,
    visibility,
};
inline constexpr std::size_t propertyCount = 20;

// Empty where the element says nothing.
class PropertyValues {
public:
    std::string_view operator[](Property property) const {
        return m_values[static_cast<std::size_t>(property)];
    }
    // Takes a declaration if it is of a property above; "font" and "marker" set what they hold.
    void set(std::string_view name, std::string_view value);

private:
    std::array<std::string_view, propertyCount> m_values;
};

PropertyValues cascade(pugi::xml_node node, const StyleSheet& sheet);

} // namespace torvik::svg
