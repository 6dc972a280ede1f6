// SPDX-License-Identifier: MIT
#include "prepare/svg/conditions.h"

#include "prepare/svg/text_reader.h"

namespace torvik::svg {

bool meetsConditions(pugi::xml_node node) {
    if (!trimmed(node.attribute("requiredExtensions").value()).empty())
        return false;
    const pugi::xml_attribute languages = node.attribute("systemLanguage");
    if (!languages)
        return true;
    TextReader reader(languages.value());
    while (!reader.atEnd()) {
        const std::string_view one = trimmed(reader.takeUntil(','));
        if (isWord(one.substr(0, one.find('-')), "en"))
            return true;
    }
    return false;
}

bool isShapeHolder(std::string_view name) {
    return name == "clipPath" || name == "mask" || name == "pattern" || name == "marker";
}

bool reachesOut(const StrokeExtents& extents, const Rectangle& viewport, const Affine& map) {
    constexpr double tolerance = 0.4; // plotter units
    if (extents.empty())
        return false;
    StrokeExtents window;
    for (const double x : {viewport.x, viewport.x + viewport.width})
        for (const double y : {viewport.y, viewport.y + viewport.height})
            window.include(map({x, y}));
    return extents.low.x < window.low.x - tolerance || extents.low.y < window.low.y - tolerance ||
           extents.high.x > window.high.x + tolerance || extents.high.y > window.high.y + tolerance;
}

} // namespace torvik::svg
