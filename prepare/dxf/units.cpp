// SPDX-License-Identifier: MIT
#include "prepare/dxf/units.h"

#include <algorithm>
#include <array>

namespace torvik::dxf {
namespace {

struct NumberedUnit {
    int number;
    Unit unit;
};

constexpr std::array<NumberedUnit, 11> units{{
    {1, {"inches", 25.4}},
    {2, {"feet", 304.8}},
    {4, {"mm", 1}},
    {5, {"cm", 10}},
    {6, {"m", 1000}},
    {8, {"microinches", 25.4e-6}},
    {9, {"thousandths of an inch", 25.4e-3}},
    {10, {"yards", 914.4}},
    {12, {"nanometres", 1e-6}},
    {13, {"micrometres", 1e-3}},
    {14, {"decimetres", 100}},
}};

int numberOf(LengthUnit unit) {
    constexpr std::array<int, 4> numbers{4, 5, 6, 1};
    return numbers[static_cast<std::size_t>(unit)];
}

} // namespace

std::optional<Unit> unitOfNumber(int number) {
    const auto* const found = std::find_if(units.begin(), units.end(),
                                           [&](const auto& one) { return one.number == number; });
    return found != units.end() ? std::optional(found->unit) : std::nullopt;
}

Unit unitOf(LengthUnit unit) {
    return *unitOfNumber(numberOf(unit));
}

} // namespace torvik::dxf
