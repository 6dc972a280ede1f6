// SPDX-License-Identifier: MIT
// Faults that are put into a good program, one at a time. A program is its lines without numbers.
#pragma once

#include <functional>
#include <random>
#include <span>
#include <string>
#include <vector>

namespace torvik {

using Lines = std::vector<std::string>;
using Random = std::mt19937;

struct Fault {
    const char* name;
    // False where the program has nothing that it could be put into.
    std::function<bool(Lines& lines, Random& random)> put;
};

std::span<const Fault> faults();

} // namespace torvik
