// SPDX-License-Identifier: MIT
// Whether everything that a program mills has a tool.
#pragma once

#include <string>

namespace torvik {

struct Job;
struct ToolList;

// The first machined group without a tool of the list, as the user reads it; empty where all have
// one. Raises SubscriptOutOfRange for a pen above 8 in the order.
std::string groupWithoutTool(const Job& job, const ToolList& tools);

} // namespace torvik
