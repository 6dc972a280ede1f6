// SPDX-License-Identifier: MIT
// What is said of a program besides that it was written.
#pragma once

#include <string>
#include <vector>

namespace torvik {

struct Dialect;
struct Job;
struct ProgramSize;
struct ToolList;

// Texts that do not stand in the program as they were given, with their fields.
std::vector<std::string> commentWarnings(const Job& job, const ToolList& tools,
                                         const Dialect& dialect);

// Lines, megabytes and steps of a long program.
std::string longText(const ProgramSize& size);
// Why a program that is too long is not written.
std::string tooLongText(const Job& job, const ProgramSize& size);

} // namespace torvik
