// SPDX-License-Identifier: MIT
// What a drawing holds, as text: pens, circle sizes, extents and element counts.
#pragma once

#include <string>

namespace torvik {

struct Job;

std::string describeDrawing(const Job& job);

} // namespace torvik
