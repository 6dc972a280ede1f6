// SPDX-License-Identifier: MIT
// The import of a drawing as one step: its lines, its pens and circles, the answers kept for it,
// and the colour tree. A drawing that fails in any of the first two is refused as a whole.
#pragma once

#include "answers/saved_settings.h"

#include <filesystem>

namespace torvik {

struct ImportResult {
    bool imported = false; // else the drawing was refused, and the job is empty
    SavedData saved;       // what became of the kept answers
};

// Reads the drawing and the answers kept for it in the folder. A refusal is logged and reported.
// gstrPlotFile becomes the name as given, so hand in a full path.
ImportResult importDrawing(Job& job, const std::filesystem::path& drawing, const ToolList& tools,
                           const std::filesystem::path& savedSettingsFolder, Logger& logger);

// The same with the answers in a named file.
ImportResult importDrawingWithAnswers(Job& job, const std::filesystem::path& drawing,
                                      const ToolList& tools,
                                      const std::filesystem::path& answersFile, Logger& logger);

// The drawing alone: its lines, pens and circles. False after a refusal.
bool readDrawing(Job& job, const std::filesystem::path& drawing, Logger& logger);

} // namespace torvik
