// SPDX-License-Identifier: MIT
// The pen language, one row for each instruction. The source, the help page and the tests all go by
// this table.
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

struct Instruction {
    std::string_view mnemonic;
    Shape shape;
    std::string_view parameters; // [x] may be left out, ... repeats
    void (PenPlotter::*perform)(const Parameters&);
    std::string_view meaning;
};

std::span<const Instruction> instructionTable();

// The row of two capital letters; null where there is none.
const Instruction* findInstruction(Mnemonic mnemonic);

} // namespace torvik
