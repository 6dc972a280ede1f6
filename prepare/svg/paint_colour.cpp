// SPDX-License-Identifier: MIT
#include "prepare/svg/paint_colour.h"

#include "prepare/svg/svg_names.h"
#include "prepare/svg/text_reader.h"

#include <cmath>

namespace torvik::svg {
namespace {

constexpr double leastOpacity = 0.5 / 255;

Colour colourOfStop(pugi::xml_node stop, const Style& style, const Document& document) {
    const std::string_view value = cascade(stop, document.sheet())[Property::stopColor];
    if (isWord(trimmed(value), "currentcolor"))
        return style.color;
    return colourOf(value).value_or(Colour{});
}

// The gradient that has stops: this one, or one that it names.
pugi::xml_node withStops(pugi::xml_node gradient, const Document& document) {
    constexpr int longestChain = 16;
    for (int i = 0; i < longestChain && gradient; ++i) {
        for (const pugi::xml_node child : gradient.children())
            if (svgName(child) == "stop")
                return gradient;
        gradient = document.find(referenceOf(gradient));
    }
    return {};
}

std::uint32_t meanColour(pugi::xml_node gradient, const Style& style, const Document& document) {
    std::array<double, 3> sums{};
    double count = 0;
    for (const pugi::xml_node child : withStops(gradient, document).children()) {
        if (svgName(child) != "stop")
            continue;
        const std::uint32_t rgb = colourOfStop(child, style, document).rgb;
        sums[0] += rgb >> 16U;
        sums[1] += rgb >> 8U & 0xFFU;
        sums[2] += rgb & 0xFFU;
        ++count;
    }
    std::uint32_t mean = 0;
    for (const double sum : sums)
        mean = mean << 8U | static_cast<std::uint32_t>(count > 0 ? std::lround(sum / count) : 0);
    return mean;
}

SeenColour referencedColour(pugi::xml_node server, const Style& style, const Document& document) {
    const std::string_view name = svgName(server);
    if (name == "linearGradient" || name == "radialGradient")
        return {meanColour(server, style, document), true};
    return {0, true};
}

} // namespace

std::optional<SeenColour> seenColour(const Paint& paint, double opacity, const Style& style,
                                     const Document& document) {
    opacity *= style.opacity;
    PaintKind kind = paint.kind;
    if (kind == PaintKind::reference) {
        const pugi::xml_node server = document.find(paint.reference);
        if (server && opacity >= leastOpacity)
            return referencedColour(server, style, document);
        kind = paint.fallback;
    }
    const Colour colour = kind == PaintKind::currentColour ? style.color : paint.colour;
    if (kind == PaintKind::none || colour.alpha * opacity < leastOpacity)
        return {};
    return SeenColour{colour.rgb, false};
}

} // namespace torvik::svg
