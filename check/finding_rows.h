// SPDX-License-Identifier: MIT
// Findings as rows for people: the worst first, what is said again and again once.
#pragma once

#include "check/findings.h"

namespace torvik::check {

struct FindingRow {
    Kind kind;
    std::uint32_t line; // the first; 0 where it is about no line
    std::size_t count;  // how often the same is found
    std::string sentence;

    Level level() const { return rowOf(kind).level; }
    // "line 213 and 4 more", empty where it is about no line.
    std::string where() const;
};

// A kind with more findings than are kept counts the others to its last row.
std::vector<FindingRow> findingRows(const Findings& findings);

} // namespace torvik::check
