// SPDX-License-Identifier: MIT
// What a digit is, in every text that is read.
#pragma once

namespace torvik {

inline bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace torvik
