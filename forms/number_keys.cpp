// SPDX-License-Identifier: MIT
#include "forms/number_keys.h"

namespace torvik {

bool isNumberCharacter(char32_t character, bool minusAllowed) {
    return (character >= U'0' && character <= U'9') || character == U'.' || character < 32 ||
           (character == U'-' && minusAllowed);
}

std::string discardedHint(char32_t character, bool minusAllowed) {
    if (character == U',')
        return "Use the point";
    return minusAllowed ? "Only digits, the point and the minus sign" : "Only digits and the point";
}

} // namespace torvik
