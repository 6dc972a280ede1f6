// SPDX-License-Identifier: MIT
// What was found while a drawing was read: how often each instruction came, and what of it is not
// carried over into strokes.
#pragma once

#include <array>
#include <cstdint>
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

// What the name of a layer begins with where a colour could stand, too.
inline constexpr std::string_view layerMark = "layer:";

// How a colour of a picture becomes a pen.
struct ColourUse {
    std::string colour; // "#rrggbb", or "layer:NAME"
    int pen = 1;
    long strokes = 0;
};

// What the drawing does not say about its size, so that it was guessed.
enum class SizeDoubt : std::uint8_t { none, unit, pixels };

struct SourceReport {
    std::map<std::string, long> instructions; // known ones, by mnemonic (of a picture: shapes)
    std::map<std::string, long> unknown;
    std::array<long, lossCount> losses{};
    long strayCharacters = 0; // that belong to no instruction
    bool selectedPen = false; // the drawing names a pen at all
    bool guessedCorners = false;
    bool drewBeforePen = false;     // some strokes came before the first pen was named
    std::vector<ColourUse> colours; // of a picture
    // What was left out, by its reason: "layers that are off".
    std::map<std::string, long> leftOut;
    // What was taken for granted: "the file names no unit; mm are taken".
    std::vector<std::string> remarks;
    SizeDoubt sizeDoubt = SizeDoubt::none;
    bool hasLayers = false;  // that pens can be asked for
    long texts = 0;          // drawn with single strokes
    long unknownLetters = 0; // drawn as empty boxes

    void lose(Loss loss, long count = 1) { losses[static_cast<std::size_t>(loss)] += count; }
    long lost(Loss loss) const { return losses[static_cast<std::size_t>(loss)]; }
};

} // namespace torvik
