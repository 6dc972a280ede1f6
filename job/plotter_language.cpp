// SPDX-License-Identifier: MIT
#include "job/plotter_language.h"

#include "job/characters.h"

#include <algorithm>

namespace torvik {
namespace {

// Pairs of letters.
constexpr std::string_view thatDraw = "PUPDPAPRPEAAARATRTBZBRCIEAEREWRARRWGXTYTPMEPFPLBPBUC";
constexpr std::string_view thatPlace = "SPIPIRSCROPS";
// Without numbers they change nothing: units go back to what the reader takes anyway.
constexpr std::string_view thatMayBeBare = "PAIPIRSCROPS";

bool holds(std::string_view pairs, Mnemonic mnemonic) {
    for (std::size_t i = 0; i < pairs.size(); i += 2)
        if (pairs[i] == mnemonic[0] && pairs[i + 1] == mnemonic[1])
            return true;
    return false;
}

// What stands behind blanks, and behind the escapes that reset a printer (E) or enter its drawing
// language (% ... B).
std::string_view withoutLead(std::string_view text) {
    for (;;) {
        while (!text.empty() && isSeparator(text[0]))
            text.remove_prefix(1);
        if (text.size() < 2 || text[0] != escape || (text[1] != 'E' && text[1] != '%'))
            return text;
        const auto last = std::find_if(text.begin() + 1, text.end(), isLetter);
        text.remove_prefix(
            std::min(static_cast<std::size_t>(last - text.begin()) + 1, text.size()));
    }
}

bool holdsPair(std::string_view text) {
    return std::adjacent_find(text.begin(), text.end(), [](char a, char b) {
               return isLetter(a) && isLetter(b);
           }) != text.end();
}

} // namespace

Effect effectOf(Mnemonic mnemonic) {
    if (holds(thatDraw, mnemonic))
        return Effect::draws;
    return holds(thatPlace, mnemonic) ? Effect::places : Effect::nothing;
}

bool isInitialize(std::string_view passedOver) {
    const std::string_view text = withoutLead(passedOver);
    return text.size() >= 2 && toCapital(text[0]) == 'I' && toCapital(text[1]) == 'N';
}

bool isLoss(std::string_view passedOver) {
    const std::string_view text = withoutLead(passedOver);
    if (text.starts_with(jobLineMark) || text.starts_with(escape))
        return false;
    if (text.size() < 2 || !isLetter(text[0]) || !isLetter(text[1]))
        // Numbers may belong to the line before.
        return holdsPair(text) || text.find_first_of("0123456789") != std::string_view::npos;
    const Mnemonic mnemonic{toCapital(text[0]), toCapital(text[1])};
    const std::string_view parameters = text.substr(2);
    // Another instruction may follow without a semicolon between them.
    if (holdsPair(parameters))
        return true;
    const Effect effect = effectOf(mnemonic);
    const bool isBare = std::all_of(parameters.begin(), parameters.end(), isSeparator);
    return effect != Effect::nothing && !(isBare && holds(thatMayBeBare, mnemonic));
}

} // namespace torvik
