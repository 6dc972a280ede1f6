// SPDX-License-Identifier: MIT
// The answers given for a drawing, kept in a folder of the program under the drawing's name and
// bound to the drawing's content by its MD5 digest.
#pragma once

#include <filesystem>
#include <string>

namespace torvik {

struct Job;
struct ToolList;
class Logger;

enum class SavedOutcome {
    none,          // there is no file
    digestDiffers, // it belongs to another drawing, or to an earlier state of this one
    damaged,       // it cannot be read or understood
    taken,         // its answers are in the job
};

struct SavedData {
    SavedOutcome outcome = SavedOutcome::none;
    std::string damage; // "FILE, line N: cause", for a damaged file only
};

// Takes over the answers kept for the drawing that was just read, whose digest stands in the job
// already. Sets gstrSavedFile; all else of the job changes only where the outcome is "taken", and
// gblnSavedFound is then set. A damaged file is logged.
SavedData GetSavedData(Job& job, const ToolList& tools, const std::filesystem::path& folder,
                       Logger& logger);

// The same from a named file.
SavedData GetSavedDataFrom(Job& job, const ToolList& tools, const std::filesystem::path& file,
                           Logger& logger);

// Whether the file, which need not exist, holds answers for the job's drawing that cannot be used.
// Raises FileError where it cannot be read.
bool isDamaged(const Job& job, const std::filesystem::path& file);

} // namespace torvik
