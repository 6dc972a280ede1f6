// SPDX-License-Identifier: MIT
#include "prepare/dxf/style.h"

#include "base/text.h"
#include "prepare/dxf/colour_numbers.h"

#include <cstdlib>

namespace torvik::dxf {
namespace {

constexpr std::uint32_t colourBits = 0xFFFFFF;

std::uint32_t colourOf(const Entity& entity, const Layer& layer, const Style& around) {
    if (entity.has(trueColourCode))
        return static_cast<std::uint32_t>(entity.integer(trueColourCode)) & colourBits;
    const int number = std::abs(entity.integer(colourCode, colourOfLayer));
    if (number == colourOfBlock)
        return around.rgb;
    if (number != colourOfLayer)
        return colourOfNumber(number);
    return layer.rgb ? *layer.rgb & colourBits : colourOfNumber(layer.colour);
}

} // namespace

bool Style::isDashed() const {
    const std::string name = lowered(lineType);
    return !name.empty() && name != "continuous";
}

Style styleOf(const Entity& entity, const Document& document, const Style& around) {
    Style style;
    const std::string_view own = entity.name(layerCode);
    // What stands on layer 0 of a block is drawn as if it stood on the layer of the use.
    const bool isOfUse = own.empty() || own == "0";
    style.layer = isOfUse ? around.layer : own;
    const Layer& layer = document.layer(style.layer);
    style.isOnShownLayer = layer.isShown && (!isOfUse || around.isOnShownLayer);
    style.rgb = colourOf(entity, layer, around);
    const std::string lineType = lowered(entity.name(lineTypeCode));
    if (lineType == "byblock")
        style.lineType = around.lineType;
    else if (lineType.empty() || lineType == "bylayer")
        style.lineType = layer.lineType;
    else
        style.lineType = entity.name(lineTypeCode);
    return style;
}

} // namespace torvik::dxf
