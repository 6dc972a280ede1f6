// SPDX-License-Identifier: MIT
// The declarations of a style ("fill: none; stroke: red !important").
#pragma once

#include <string_view>
#include <vector>

namespace torvik::svg {

struct Declaration {
    std::string_view name;
    std::string_view value; // without "!important"
    bool isImportant = false;
};

// In their order. What is no declaration is passed over.
std::vector<Declaration> declarationsOf(std::string_view text);

} // namespace torvik::svg
