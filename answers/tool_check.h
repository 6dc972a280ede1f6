// SPDX-License-Identifier: MIT
// Whether everything that a program mills has a tool.
#pragma once

#include "job/machined_groups.h"

#include <optional>

namespace torvik {

struct ToolList;

// The first machined group without a tool of the list, none where all have one. Raises
// SubscriptOutOfRange for a pen above 8 in the order.
std::optional<MachinedGroup> groupWithoutTool(const Job& job, const ToolList& tools);

} // namespace torvik
