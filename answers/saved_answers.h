// SPDX-License-Identifier: MIT
// A job's answers as a value that can be kept, and back into a job. Tools are named by their own
// number there, by their place in the tool list in the job. No Qt.
#pragma once

#include "answers/saved_text.h"

namespace torvik {

struct Job;
struct ToolList;

// The units of feeds as pages show them, by the feed factor; none where it was not chosen.
std::string feedUnits(float factor);

// The drawing's used pens, with their circles and circle sizes and no answers.
SavedAnswers answersShape(const Job& job);

// Raises SubscriptOutOfRange where a group's tool is not in the list.
SavedAnswers answersOfJob(const Job& job, const ToolList& tools);

// Puts answers of the job's own shape into the job. A group is complete when its tool is in the
// list; intToolGone has the number of a tool that is not. An order that is not one of the machined
// pens leaves gblnOrderSet False and the order rebuilt.
void takeAnswers(Job& job, SavedAnswers answers, const ToolList& tools);

// Takes over an order of just the machined pens, each once; entries of 0 or less are skipped.
// Otherwise the order is rebuilt and gblnOrderSet False.
void takeOrder(Job& job, const std::array<std::int16_t, penCount>& entries);

} // namespace torvik
