// SPDX-License-Identifier: MIT
// What the rows of the machining order say about their pens.
#pragma once

#include <QString>

#include <cstdint>

namespace torvik {

struct Answers;
struct ToolList;

// How the pen is machined: "cut – T1 6.0 mm – 5.2 mm deep", "drill – T6 5.0 mm, T7 8.0 mm – 2.0 to
// 6.5 mm deep". Empty where nothing is known of it.
QString machiningText(const Answers& answers, const ToolList& tools, std::int16_t pen);

} // namespace torvik
