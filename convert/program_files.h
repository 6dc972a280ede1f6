// SPDX-License-Identifier: MIT
// A program and the text file beside it, written together or not at all: both are written under
// temporary names in their folder and renamed when they are whole.
#pragma once

#include <cstdint>
#include <filesystem>

namespace torvik {

struct Dialect;
struct Job;
struct ToolList;
class Logger;

// Raises FileError where a file exists already (unless `overwrite`) or cannot be written. False
// where the job cannot be written as it stands; the logger has been told why. In both cases no
// file of this name has changed.
bool writeProgramFiles(Job& job, const ToolList& tools, const Dialect& dialect, std::int16_t number,
                       const std::filesystem::path& program, bool overwrite, Logger& logger);

} // namespace torvik
