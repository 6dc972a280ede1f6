// SPDX-License-Identifier: MIT
#include "prepare/svg/style.h"

#include "prepare/svg/svg_names.h"
#include "prepare/svg/text_reader.h"

namespace torvik::svg {
namespace {

void takePaint(Paint& paint, std::string_view value) {
    if (const auto read = paintOf(value))
        paint = *read;
}

void takeShare(double& share, std::string_view value) {
    if (const auto read = shareOf(value))
        share = *read;
}

struct NamedSize {
    std::string_view name;
    double size;
};

constexpr std::array<NamedSize, 7> namedSizes{{{"xx-small", 9},
                                               {"x-small", 10},
                                               {"small", 13},
                                               {"medium", 16},
                                               {"large", 18},
                                               {"x-large", 24},
                                               {"xx-large", 32}}};

void takeFontSize(double& size, std::string_view value, LengthRules rules) {
    constexpr double step = 1.2;
    rules.fontSize = size;
    for (const NamedSize& named : namedSizes)
        if (isWord(value, named.name))
            size = named.size;
    if (isWord(value, "larger"))
        size *= step;
    else if (isWord(value, "smaller"))
        size /= step;
    else if (const auto length = lengthOf(value, rules, size))
        size = *length;
}

bool hasDashes(std::string_view value) {
    TextReader reader(value);
    double sum = 0;
    reader.skipBlanks();
    while (const auto number = reader.takeNumber()) {
        sum += *number;
        reader.takeLetters();
        reader.take('%');
        reader.skipSeparator();
    }
    return sum > 0;
}

bool isInherited(std::string_view value) {
    return value.empty() || isWord(value, "inherit");
}

void takeMarkers(Style& style, const PropertyValues& values) {
    int place = 1;
    for (const Property marker :
         {Property::markerStart, Property::markerMid, Property::markerEnd}) {
        if (!isInherited(values[marker]))
            style.markers = urlReference(values[marker]).empty() ? style.markers & ~place
                                                                 : style.markers | place;
        place *= 2;
    }
}

void takeInherited(Style& style, const PropertyValues& values, const LengthRules& rules) {
    takePaint(style.fill, values[Property::fill]);
    takePaint(style.stroke, values[Property::stroke]);
    if (const auto colour = colourOf(values[Property::color]))
        style.color = *colour;
    takeShare(style.fillOpacity, values[Property::fillOpacity]);
    takeShare(style.strokeOpacity, values[Property::strokeOpacity]);
    takeFontSize(style.fontSize, trimmed(values[Property::fontSize]), rules);
    const std::string_view visibility = trimmed(values[Property::visibility]);
    if (!isInherited(visibility))
        style.isVisible = !isWord(visibility, "hidden") && !isWord(visibility, "collapse");
    if (!isInherited(values[Property::strokeDashes]))
        style.isDashed = hasDashes(values[Property::strokeDashes]);
    const std::string_view anchor = trimmed(values[Property::textAnchor]);
    if (!isInherited(anchor))
        style.anchor = isWord(anchor, "middle") ? TextAnchor::middle
                       : isWord(anchor, "end")  ? TextAnchor::end
                                                : TextAnchor::start;
    takeMarkers(style, values);
}

// Without a reference.
std::optional<Paint> plainPaintOf(std::string_view text) {
    if (isWord(text, "none"))
        return Paint{};
    if (isWord(text, "currentcolor"))
        return Paint{PaintKind::currentColour, {}, {}};
    if (const auto colour = colourOf(text))
        return Paint{PaintKind::colour, *colour, {}};
    return {};
}

} // namespace

std::optional<Paint> paintOf(std::string_view text) {
    text = trimmed(text);
    if (text.empty())
        return {};
    std::string_view rest;
    if (const std::string_view reference = urlReference(text, rest); !reference.empty()) {
        const Paint fallback = plainPaintOf(trimmed(rest)).value_or(Paint{});
        return Paint{PaintKind::reference, fallback.colour, reference, fallback.kind};
    }
    return plainPaintOf(text);
}

Style styleWithin(const Style& around, const PropertyValues& values, const LengthRules& rules) {
    Style style = around;
    takeInherited(style, values, rules);
    double opacity = 1;
    takeShare(opacity, values[Property::opacity]);
    style.opacity *= opacity;
    style.isDisplayed = !isWord(trimmed(values[Property::display]), "none");
    style.isClipped = !urlReference(values[Property::clipPath]).empty();
    style.effects = (urlReference(values[Property::mask]).empty() ? 0 : 1) +
                    (urlReference(values[Property::filter]).empty() ? 0 : 1);
    const std::string_view overflow = trimmed(values[Property::overflow]);
    style.overflows = isWord(overflow, "visible") || isWord(overflow, "auto");
    style.transform = values[Property::transform];
    return style;
}

} // namespace torvik::svg
