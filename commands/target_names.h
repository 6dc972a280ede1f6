// SPDX-License-Identifier: MIT
// The option --target of the programs that have a table of controls, each row with its optionName.
#pragma once

#include "commands/option_table.h"

#include <span>
#include <string>
#include <vector>

namespace torvik {

// What the option may say.
template <typename Row>
std::vector<std::string> targetChoices(std::span<const Row> rows) {
    std::vector<std::string> names;
    names.reserve(rows.size());
    for (const Row& row : rows)
        names.emplace_back(row.optionName);
    return names;
}

// "wincam, winnc".
template <typename Row>
std::string targetNames(std::span<const Row> rows) {
    std::string names;
    for (const Row& row : rows)
        names.append(names.empty() ? "" : ", ").append(row.optionName);
    return names;
}

// The row of this name. Raises UsageError where there is none.
template <typename Row>
const Row& targetNamed(std::span<const Row> rows, const std::string& name) {
    for (const Row& row : rows)
        if (row.optionName == name)
            return row;
    throw UsageError("there is no target \"" + name + "\" (one of " + targetNames(rows) + ")");
}

} // namespace torvik
