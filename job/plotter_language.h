// SPDX-License-Identifier: MIT
// What the instructions of the plotters' whole language do to a drawing. The reader of this program
// takes five of them; this says what is lost with each of the others.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace torvik {

// Two capital letters.
using Mnemonic = std::array<char, 2>;

// What becomes of the drawing where the instruction is passed over.
enum class Effect : std::uint8_t {
    draws,   // lines are missing, or lie elsewhere
    places,  // what follows lies elsewhere, has another size or another pen
    nothing, // the lines stay the same
};

Effect effectOf(Mnemonic mnemonic);

// Whether a piece of a drawing's text that is passed over holds an instruction with an effect on
// the drawing, in whatever way that is written: in small letters, behind blanks, behind the escapes
// that printers want said before a drawing.
bool isLoss(std::string_view passedOver);

// True for IN in any spelling: a plotter lifts its pen and goes back to the origin.
bool isInitialize(std::string_view passedOver);

} // namespace torvik
