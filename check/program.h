// SPDX-License-Identifier: MIT
// A written program as it was read: its control, what its header tells, its statements.
#pragma once

#include "check/program_header.h"
#include "check/statement.h"

#include <vector>

namespace torvik::check {

struct Program {
    const Target* target = nullptr;
    Header header;
    std::vector<Statement> statements;
    std::uint32_t lines = 0;

    std::uint32_t lastLine() const { return lines == 0 ? 1 : lines; }
};

} // namespace torvik::check
