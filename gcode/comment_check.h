// SPDX-License-Identifier: MIT
// Texts that will not stand in a program's comments as they were given: a bracket ends a comment
// that stands in brackets, and a letter that the program's encoding lacks becomes "?".
#pragma once

#include <string>
#include <vector>

namespace torvik {

struct Dialect;
struct Job;
struct ToolList;

struct CommentFault {
    std::string field; // "Designer", or "T7" for the type of a tool
    std::string text;  // UTF-8
    bool isTool = false;
    bool endsComment = false;
    std::string lost; // the letters that become "?", with blanks between
};

// The header's lines and the types of the tools that the program takes, in the order in which they
// are written, as far as something is wrong with them. Without a tool that is not in the list.
std::vector<CommentFault> commentFaults(const Job& job, const ToolList& tools,
                                        const Dialect& dialect);

} // namespace torvik
