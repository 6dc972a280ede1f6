// SPDX-License-Identifier: MIT
// Lengths of an SVG picture with their units. A user unit is 1/96 inch.
#pragma once

#include <QStringView>

#include <optional>

namespace torvik {

inline constexpr double mmPerUserUnit = 25.4 / 96;

// The length in user units; a number in hundredths counts of `whole`. None where it is no length or
// has a unit that depends on fonts.
std::optional<double> svgLength(QStringView text, double whole);

} // namespace torvik
