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

// For a box of digits and points; `other` is for what is neither, nor a comma.
KeyHint hintBeyondPoint(char32_t character, KeyHint other) {
    if (isControl(character) || isDigit(character) || character == U'.')
        return KeyHint::none;
    return character == U',' ? KeyHint::usePoint : other;
}

} // namespace

KeyHint toolNumberHint(char32_t character, const BoxState& /*box*/) {
    return isControl(character) || isDigit(character) ? KeyHint::none : KeyHint::digitsOnly;
}

KeyHint toolDiameterHint(char32_t character, const BoxState& box) {
    constexpr std::size_t mostDecimals = 3;
    const std::size_t point = box.text.find('.');
    if (!box.hasSelection && point != std::string_view::npos) {
        if (character == U'.')
            return KeyHint::pointThere;
        if (isDigit(character) && box.caret > point && box.text.size() - point > mostDecimals)
            return KeyHint::threeDecimals;
    }
    return hintBeyondPoint(character, KeyHint::digitsAndPoint);
}

KeyHint measureHint(char32_t character, const BoxState& /*box*/) {
    return hintBeyondPoint(character, KeyHint::digitsAndPoint);
}

KeyHint signedMeasureHint(char32_t character, const BoxState& /*box*/) {
    return character == U'-' ? KeyHint::none
                             : hintBeyondPoint(character, KeyHint::digitsPointAndMinus);
}

} // namespace torvik
