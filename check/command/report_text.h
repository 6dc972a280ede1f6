// SPDX-License-Identifier: MIT
// The report of one program as people read it, as a line of a table, and as JSON. UTF-8.
#pragma once

#include "check/check.h"
#include "check/time/program_time.h"

#include <string>
#include <string_view>

namespace torvik::check {

// A line for each finding, then one that sums up. Only what is dangerous or wrong where `quiet`.
std::string reportText(std::string_view file, const Report& report, bool quiet);

// The line above the table, and one program's; `width` is that of the first column.
std::string tableHead(std::size_t width);
std::string tableLine(std::string_view file, const Report& report, std::size_t width);
// How wide a name is, in characters.
std::size_t widthOf(std::string_view name);

// How long the program takes at the workshop's pace; nothing where its control is not known.
ProgramTime timeOf(const Report& report);

// One JSON object.
std::string reportJson(std::string_view file, const Report& report, bool quiet);

} // namespace torvik::check
