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

} // namespace

std::string toolNumberHint(char32_t character, const BoxState& /*box*/) {
    return isControl(character) || isDigit(character) ? "" : "Digits only";
}

std::string toolDiameterHint(char32_t character, const BoxState& box) {
    constexpr std::size_t mostDecimals = 3;
    if (isControl(character))
        return "";
    const std::size_t point = box.text.find('.');
    if (!box.hasSelection && point != std::string_view::npos) {
        if (character == U'.')
            return "There is a point already";
        if (isDigit(character) && box.caret > point && box.text.size() - point > mostDecimals)
            return "Three digits after the point at most";
    }
    if (isDigit(character) || character == U'.')
        return "";
    return character == U',' ? "Use the point" : "Digits and the point only";
}

} // namespace torvik
