// SPDX-License-Identifier: MIT
// Which typed characters the boxes of a tool take. Each filter answers with the hint for a
// character that is discarded, and with an empty text for one that passes; control characters
// always pass.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace torvik {

// A box at the moment of a key press.
struct BoxState {
    std::string_view text;
    std::size_t caret = 0; // bytes of the text before the caret
    bool hasSelection = false;
};

// Digits only.
std::string toolNumberHint(char32_t character, const BoxState& box);
// Digits and one point, three digits behind it. While something is selected, which the key will
// replace, any digit and point passes.
std::string toolDiameterHint(char32_t character, const BoxState& box);

} // namespace torvik
