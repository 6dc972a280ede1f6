// SPDX-License-Identifier: MIT
// The piece of a tried program, for the windows and the sheet that show it.
#pragma once

#include "preview/cut/cut_piece.h"

namespace torvik {

struct Job;
struct ToolList;
struct TriedProgram;

// Takes the program's text and its moves out of the trial.
CutPiece pieceOf(TriedProgram& tried, const Job& job, const ToolList& tools);

} // namespace torvik
