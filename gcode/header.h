// SPDX-License-Identifier: MIT
// The descriptive header of a program: who made the part, of what, and the tools it takes.
#pragma once

#include <cstdint>
#include <string_view>

namespace torvik {

struct Job;
struct ToolList;
class Logger;
class ProgramOutput;

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
