// SPDX-License-Identifier: MIT
#include "forms/key_filters.h"

namespace torvik {
namespace {

bool isControl(char32_t character) {
    return character < U' ' || character == 0x7F;
}

bool isDigit(char32_t character) {
    return character >= U'0' && character <= U'9';
}

// For a box of digits and one point; `other` is for what is neither.
KeyHint hintOf(char32_t character, const BoxState& box, KeyHint other) {
    if (isControl(character) || isDigit(character))
        return KeyHint::none;
    if (character != U'.' && character != U',')
        return other;
    return box.text.find('.') == std::string_view::npos ? KeyHint::none : KeyHint::pointThere;
}

} // namespace

KeyHint toolNumberHint(char32_t character, const BoxState& /*box*/) {
    return isControl(character) || isDigit(character) ? KeyHint::none : KeyHint::digitsOnly;
}

KeyHint toolDiameterHint(char32_t character, const BoxState& box) {
    constexpr std::size_t mostDecimals = 3;
    const std::size_t point = box.text.find('.');
    if (isDigit(character) && !box.hasSelection && point != std::string_view::npos &&
        box.caret > point && box.text.size() - point > mostDecimals)
        return KeyHint::threeDecimals;
    return hintOf(character, box, KeyHint::digitsAndPoint);
}

KeyHint measureHint(char32_t character, const BoxState& box) {
    return hintOf(character, box, KeyHint::digitsAndPoint);
}

KeyHint signedMeasureHint(char32_t character, const BoxState& box) {
    return character == U'-' ? KeyHint::none : hintOf(character, box, KeyHint::digitsPointAndMinus);
}

} // namespace torvik
