// SPDX-License-Identifier: MIT
// What was found while a drawing was read: how often each instruction came, and what of it is not
// carried over into strokes.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace torvik {

// What a drawing says and strokes cannot hold.
enum class Loss {
    text,
    symbols,
    fill,
    dashes,
    clipping,
    pictures,
    effects,
    coarseChords,
    noPen,
    arcsWithPenUp,
    pages,
    malformed,
};
inline constexpr std::size_t lossCount = 12;

// "fills (the outline is drawn)"
std::string_view lossText(Loss loss);

// How a colour of a picture becomes a pen.
struct ColourUse {
    std::string colour; // "#rrggbb"
    int pen = 1;
    long strokes = 0;
};

struct SourceReport {
    std::map<std::string, long> instructions; // known ones, by mnemonic (of a picture: shapes)
    std::map<std::string, long> unknown;
    std::array<long, lossCount> losses{};
    long strayCharacters = 0; // that belong to no instruction
    bool selectedPen = false; // the drawing names a pen at all
    bool guessedCorners = false;
    bool drewBeforePen = false;     // some strokes came before the first pen was named
    std::vector<ColourUse> colours; // of a picture

    void lose(Loss loss, long count = 1) { losses[static_cast<std::size_t>(loss)] += count; }
    long lost(Loss loss) const { return losses[static_cast<std::size_t>(loss)]; }
};

} // namespace torvik
