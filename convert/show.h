// SPDX-License-Identifier: MIT
// What a drawing holds, as text: pens, circle sizes, extents and element counts; and what of its
// file was passed over.
#pragma once

#include <string>
#include <string_view>

namespace torvik {

struct Job;

// `bytes` is the file that the job was read from.
std::string describeDrawing(const Job& job, std::string_view bytes);

} // namespace torvik
