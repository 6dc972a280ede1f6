// SPDX-License-Identifier: MIT
#include "prepare/svg/lengths.h"

#include "prepare/svg/text_reader.h"

#include <array>
#include <cmath>

namespace torvik::svg {
namespace {

struct RealUnit {
    std::string_view name;
    double toInch; // how many make an inch
};

constexpr std::array<RealUnit, 6> realUnits{
    {{"mm", mmPerInch}, {"cm", 2.54}, {"in", 1}, {"pt", 72}, {"pc", 6}, {"q", 4 * mmPerInch}}};

const RealUnit* findRealUnit(std::string_view name) {
    for (const RealUnit& unit : realUnits)
        if (isWord(name, unit.name))
            return &unit;
    return nullptr;
}

} // namespace

double LengthRules::whole(Along along) const {
    switch (along) {
    case Along::width:
        return width;
    case Along::height:
        return height;
    case Along::diagonal:
        break;
    }
    return std::hypot(width, height) / std::sqrt(2.0);
}

std::optional<double> lengthOf(std::string_view text, const LengthRules& rules, double whole) {
    TextReader reader(trimmed(text));
    const auto number = reader.takeNumber();
    const std::string_view unit = reader.rest();
    if (!number)
        return {};
    if (unit.empty() || isWord(unit, "px"))
        return number;
    if (unit == "%")
        return *number / 100 * whole;
    if (const RealUnit* const real = findRealUnit(unit))
        return *number * rules.pixelsPerInch / real->toInch;
    if (isWord(unit, "em") || isWord(unit, "rem"))
        return *number * rules.fontSize;
    if (isWord(unit, "ex"))
        return *number * rules.fontSize / 2;
    return {};
}

bool hasRealUnit(std::string_view text) {
    TextReader reader(trimmed(text));
    return reader.takeNumber() && findRealUnit(reader.rest()) != nullptr;
}

} // namespace torvik::svg
