// SPDX-License-Identifier: MIT
// Which typed characters the numeric boxes take. Each filter says for a character why it is
// discarded, or that it passes; control characters always pass.
// A comma is a decimal point; the box writes it as such.
#pragma once

#include <cstddef>
#include <string_view>

namespace torvik {

// A box at the moment of a key press, without what is selected and the key will replace.
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
    pointThere,    // a second one
    threeDecimals, // and no more
};

using KeyFilter = KeyHint (*)(char32_t character, const BoxState& box);

// Digits only.
KeyHint toolNumberHint(char32_t character, const BoxState& box);
// Digits and one point or comma, three digits behind it; while something is selected any digit
// passes.
KeyHint toolDiameterHint(char32_t character, const BoxState& box);
// Digits and one point or comma.
KeyHint measureHint(char32_t character, const BoxState& box);
// The same, and the minus sign.
KeyHint signedMeasureHint(char32_t character, const BoxState& box);

} // namespace torvik
