// SPDX-License-Identifier: MIT
// Drawings for walks: samples with and without the answers saved for them, small ones made up by
// chance, damaged ones.
#pragma once

#include "tests/reliability/chance.h"

#include <filesystem>

namespace torvik {

struct WalkDrawing {
    std::filesystem::path file;
    bool isDamaged = false; // an error may be told where it is opened
};

// Puts a drawing into the folder, and saved answers into its PlotSave.
WalkDrawing makeDrawing(Chance& chance, const std::filesystem::path& folder, bool mayBeDamaged);

} // namespace torvik
