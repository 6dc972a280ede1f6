// SPDX-License-Identifier: MIT
// How long a program will be, counted before it is written: the walk of the writer is gone
// through without a number becoming text.
#pragma once

#include "job/machined_groups.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace torvik {

struct Dialect;
struct ToolList;

// Above this nobody should write a program without being asked.
inline constexpr std::int64_t manyLines = 200'000;
// Above this none is written.
inline constexpr std::int64_t mostLines = 20'000'000;

// Where a group begins in a program.
struct GroupSize {
    MachinedGroup group;
    std::int64_t firstLine; // from 1
    std::int64_t steps;     // its depth passes, or the pecks of all its holes
};

struct ProgramSize {
    // Exact up to mostLines; the counting ends with the line behind. Where an error will end the
    // writing, the lines before it.
    std::int64_t lines = 0;
    std::int64_t bytes = 0;               // about
    std::int64_t steps = 0;               // depth passes and pecks
    std::optional<MachinedGroup> longest; // the group with the most lines
    std::vector<GroupSize> groups;        // in machining order

    bool isLong() const { return lines > manyLines; }
    bool isTooLong() const { return lines > mostLines; }
    // At least 1.
    std::int64_t megabytes() const;
};

// The size of the job's program for the target; without the text beside it.
ProgramSize programSize(const Job& job, const ToolList& tools, const Dialect& dialect);

} // namespace torvik
