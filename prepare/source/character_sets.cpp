// SPDX-License-Identifier: MIT
#include "prepare/source/character_sets.h"

#include "base/text.h"

#include <algorithm>
#include <array>

namespace torvik {
namespace {

constexpr char32_t noLetter = U'\ufffd';

// The characters whose places the national forms use.
constexpr std::string_view nationalPlaces = R"(#$@[\]^`{|}~)";

struct NationalSet {
    int number;
    std::u32string_view letters; // for each of the places
};

constexpr std::array<NationalSet, 10> nationalSets{{
    {30, U"#¤@ÄÖÅ^`äöå~"},  // Sweden
    {31, U"#¤ÉÄÖÅÜéäöåü"},  // Sweden, for names
    {32, U"#$@ÆØÅ^`æøå~"},  // Norway
    {33, U"#$§ÄÖÜ^`äöüß"},  // Germany
    {34, U"£$à°ç§^`éùè¨"},  // France
    {35, U"£$@[\\]^`{|}~"}, // United Kingdom
    {36, U"£$§°çé^ùàòèì"},  // Italy
    {37, U"£$§¡Ñ¿^`°ñç~"},  // Spain
    {38, U"#$§ÃÇÕ^`ãçõ°"},  // Portugal
    {39, U"§$@ÆØÅ^`æøå|"},  // Norway, the second form
}};

// From 0xA0 on.
constexpr std::u32string_view roman8 = U"\u00a0ÀÂÈÊËÎÏ´`^¨~ÙÛ₤¯Ýý°ÇçÑñ¡¿¤£¥§ƒ¢"
                                       U"âêôûáéóúàèòùäëöüÅîØÆåíøæÄìÖÜÉïßÔ"
                                       U"ÁÃãÐðÍÌÓÒÕõŠšÚŸÿÞþ·µ¶¾—¼½ªº«■»±\ufffd";
constexpr unsigned char firstHigh = 0xA0;

static_assert(roman8.size() == 0x100 - firstHigh);

} // namespace

char32_t letterOf(unsigned char byte, int set) {
    if (byte >= firstHigh)
        return set == latin1Set ? static_cast<char32_t>(byte) : roman8[byte - firstHigh];
    if (byte >= 0x80)
        return noLetter;
    const auto national = std::find_if(nationalSets.begin(), nationalSets.end(),
                                       [&](const auto& one) { return one.number == set; });
    const auto place = nationalPlaces.find(static_cast<char>(byte));
    if (national == nationalSets.end() || place == std::string_view::npos)
        return byte;
    return national->letters[place];
}

bool isUtf8Label(std::string_view text) {
    bool isAscii = true;
    while (!text.empty()) {
        const char32_t letter = takeLetter(text);
        if (letter == noLetter)
            return false;
        isAscii = isAscii && letter < 0x80;
    }
    return !isAscii;
}

} // namespace torvik
