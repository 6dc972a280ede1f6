// SPDX-License-Identifier: MIT
// Reads one statement of a control, its line number taken off: which of the control's forms it has,
// and its numbers. Finds what is none of them (`statement`) and numbers that are written wrongly
// (`number`). A form whose feed is missing is still known as that form.
#pragma once

#include "check/findings.h"
#include "check/statement.h"

#include <string_view>

namespace torvik::check {

Statement readStatement(const Target& target, std::string_view text, std::uint32_t line,
                        Findings& findings);

} // namespace torvik::check
