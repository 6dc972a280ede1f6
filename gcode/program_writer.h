// SPDX-License-Identifier: MIT
// The body of a program: tool changes, rapids, cuts in depth passes and drilled holes.
#pragma once

#include <cstdint>

namespace torvik {

struct Job;
struct ToolList;
class Logger;
class ProgramOutput;

// Writes the body for the target code; a code without a dialect writes it without tool change,
// spindle and end statements. Block numbers run on from the output's last. False after a trapped
// error (a tool or pen that does not exist, a step that never reaches its depth, a number that does
// not fit, a failed write); the lines before it stay.
bool WriteGcodes(const Job& job, const ToolList& tools, std::int16_t target, ProgramOutput& output,
                 Logger& logger);

} // namespace torvik
