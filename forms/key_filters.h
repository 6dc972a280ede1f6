// SPDX-License-Identifier: MIT
// Which typed characters the numeric boxes take. Each filter says for a character why it is
// discarded, or that it passes; control characters always pass.
#pragma once

#include <cstddef>
#include <string_view>

namespace torvik {

// A box at the moment of a key press.
struct BoxState {
    std::string_view text;
    std::size_t caret = 0; // bytes of the text before the caret
    bool hasSelection = false;
};

enum class KeyHint {
    none, // the character passes
    digitsOnly,
    digitsAndPoint,
    digitsPointAndMinus,
    usePoint,      // for a comma
    pointThere,    // a second one
    threeDecimals, // and no more
};

using KeyFilter = KeyHint (*)(char32_t character, const BoxState& box);

// Digits only.
KeyHint toolNumberHint(char32_t character, const BoxState& box);
// Digits and one point, three digits behind it. While something is selected, which the key will
// replace, any digit and point passes.
KeyHint toolDiameterHint(char32_t character, const BoxState& box);
// Digits and the point.
KeyHint measureHint(char32_t character, const BoxState& box);
// Digits, the point and the minus sign.
KeyHint signedMeasureHint(char32_t character, const BoxState& box);

} // namespace torvik
