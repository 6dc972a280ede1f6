// SPDX-License-Identifier: MIT
// The pen language, one row for each instruction. The source, the count of what the job's own
// reader would pass over, the help page and the tests all go by this table.
#pragma once

#include "prepare/source/pen_plotter.h"
#include "prepare/source/scanner.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace torvik {

// How the characters behind the mnemonic are read.
enum class Shape : std::uint8_t {
    numbers,   // separated by commas, blanks or signs
    text,      // up to the label terminator
    character, // one, any
    comment,   // in quotes, or up to the semicolon
    encoded,   // an encoded polyline
};

// What becomes of the drawing where the instruction is passed over.
enum class Effect : std::uint8_t {
    draws,   // lines are missing, or lie elsewhere
    places,  // what follows lies elsewhere, has another size or another pen
    nothing, // the strokes stay the same
};

struct Instruction {
    std::string_view mnemonic;
    Shape shape;
    Effect effect;
    std::string_view parameters; // [x] may be left out, ... repeats
    void (PenPlotter::*perform)(const Parameters&);
    std::string_view meaning;
};

std::span<const Instruction> instructionTable();

// The row of two capital letters; null where there is none.
const Instruction* findInstruction(Mnemonic mnemonic);

} // namespace torvik
