// SPDX-License-Identifier: MIT
// What a drawing holds, as text: pens, circle sizes, extents and element counts; and what of its
// file was passed over.
#pragma once

#include <string>
#include <string_view>

namespace torvik {

struct Job;

std::string describeDrawing(const Job& job);

} // namespace torvik
