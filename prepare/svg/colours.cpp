// SPDX-License-Identifier: MIT
#include "prepare/svg/colours.h"

#include "base/text.h"
#include "prepare/svg/colour_names.h"
#include "prepare/svg/text_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace torvik::svg {
namespace {

constexpr double brightest = 255;

struct Part {
    double value = 0;
    bool inHundredths = false;
};

double withinOne(double share) {
    return std::clamp(share, 0.0, 1.0);
}

std::uint32_t packed(double red, double green, double blue) {
    const auto byte = [](double value) {
        return static_cast<std::uint32_t>(std::lround(std::clamp(value, 0.0, brightest)));
    };
    return byte(red) << 16 | byte(green) << 8 | byte(blue);
}

std::optional<Colour> fromDigits(std::string_view digits) {
    std::uint32_t value = 0;
    const auto [last, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (error != std::errc() || last != digits.data() + digits.size())
        return {};
    if (digits.size() == 3 || digits.size() == 4) {
        std::uint32_t wide = 0;
        for (int shift = static_cast<int>(digits.size()) * 4 - 4; shift >= 0; shift -= 4)
            wide = wide << 8 | (value >> shift & 0xFU) * 0x11U;
        value = wide;
    } else if (digits.size() != 6 && digits.size() != 8) {
        return {};
    }
    const bool hasAlpha = digits.size() == 4 || digits.size() == 8;
    return hasAlpha ? Colour{value >> 8, (value & 0xFFU) / brightest} : Colour{value, 1};
}

std::optional<Part> takePart(TextReader& reader) {
    const auto number = reader.takeNumber();
    if (!number)
        return {};
    const bool inHundredths = reader.take('%');
    if (!inHundredths)
        reader.takeLetters(); // "deg"
    reader.skipSeparator();
    if (reader.take('/'))
        reader.skipBlanks();
    return Part{*number, inHundredths};
}

Colour fromHue(double degrees, double saturation, double lightness, double alpha) {
    const double most = saturation * std::min(lightness, 1 - lightness);
    const auto channel = [&](double shift) {
        const double turned = std::fmod(shift + degrees / 30, 12);
        const double place = turned < 0 ? turned + 12 : turned;
        return brightest *
               (lightness - most * std::max(-1.0, std::min({place - 3, 9 - place, 1.0})));
    };
    return {packed(channel(0), channel(8), channel(4)), alpha};
}

std::optional<Colour> fromParts(TextReader& reader, bool byHue) {
    std::array<Part, 3> parts;
    reader.skipBlanks();
    for (Part& part : parts) {
        const auto read = takePart(reader);
        if (!read)
            return {};
        part = *read;
    }
    double alpha = 1;
    if (const auto read = takePart(reader))
        alpha = withinOne(read->inHundredths ? read->value / 100 : read->value);
    if (byHue)
        return fromHue(parts[0].value, withinOne(parts[1].value / 100),
                       withinOne(parts[2].value / 100), alpha);
    const auto bright = [](const Part& part) {
        return part.inHundredths ? part.value * brightest / 100 : part.value;
    };
    return Colour{packed(bright(parts[0]), bright(parts[1]), bright(parts[2])), alpha};
}

} // namespace

std::optional<Colour> colourOf(std::string_view text) {
    TextReader reader(trimmed(text));
    if (reader.take('#'))
        return fromDigits(reader.takeName());
    const std::string name = lowered(reader.takeName());
    if (reader.take('(')) {
        if (name == "rgb" || name == "rgba")
            return fromParts(reader, false);
        if (name == "hsl" || name == "hsla")
            return fromParts(reader, true);
        return {};
    }
    if (name == "transparent")
        return Colour{0, 0};
    if (const auto named = namedColour(name))
        return Colour{*named, 1};
    return {};
}

std::optional<double> shareOf(std::string_view text) {
    TextReader reader(trimmed(text));
    const auto number = reader.takeNumber();
    if (!number)
        return {};
    return withinOne(reader.peek() == '%' ? *number / 100 : *number);
}

} // namespace torvik::svg
