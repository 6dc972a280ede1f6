// SPDX-License-Identifier: MIT
// What a fuzz target holds to be true whatever it is fed.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace torvik {

// Stops the program, so that libFuzzer keeps the input, where the property does not hold.
inline void holds(bool property, const char* says) {
    if (property)
        return;
    std::fprintf(stderr, "this does not hold: %s\n", says);
    std::abort();
}

} // namespace torvik
