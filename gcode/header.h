// SPDX-License-Identifier: MIT
// The descriptive header of a program: who made the part, of what, and the tools it takes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace torvik {

struct Job;
struct ToolList;
class Logger;
class ProgramOutput;

// What a header line is called, 0 to 8: "Date", "Designer" ... "Billet Depth Z".
std::string headerFieldName(std::int16_t index);

// The places of the tools in the order of their use; one that is used twice in a row stands once.
// Raises SubscriptOutOfRange for a pen above 8 in the order.
std::vector<std::int16_t> toolsInUse(const Job& job);

// Writes the header values and the tool lines as comments between the opener and the closer (both
// empty for the text file beside a program). False after a trapped error: more than sixteen tools,
// or a tool or pen that does not exist; the lines before it stay.
bool WriteHeader(const Job& job, const ToolList& tools, std::string_view opener,
                 std::string_view closer, ProgramOutput& output, Logger& logger);

// Writes the trimmed header value with that index, 0 to 8, between the labelled opener and unit
// plus closer, unless it is empty.
void HeaderLine(const Job& job, std::string_view labelledOpener, std::string_view unit,
                std::string_view closer, std::int16_t index, ProgramOutput& output);

} // namespace torvik
