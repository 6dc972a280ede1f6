// SPDX-License-Identifier: MIT
// A program laid beside what its job asks for: every group in its order with its tool, speed and
// feeds, every element at every height once, every hole with its pecks, and nothing else.
#pragma once

#include "check/check.h"
#include "check/finders.h"

namespace torvik {
struct Job;
struct ToolList;
} // namespace torvik

namespace torvik::check {

// Raises SubscriptOutOfRange where the job's order names a pen above 8, and
// Cancelled where `stop` asks for it.
void findPlan(const Walked& walked, const Job& job, const ToolList& tools, Findings& findings,
              const std::stop_token& stop = {});

// The same, for a check. The job and the tools live as long as that.
FindPlan planOf(const Job& job, const ToolList& tools, const std::stop_token& stop = {});

// The check of a program from its text, and against the job that it is made from. Raises the same.
Report checkProgramOfJob(std::string_view program, std::string_view sideText, const Job& job,
                         const ToolList& tools, const Target* target = nullptr,
                         const std::stop_token& stop = {});

} // namespace torvik::check
