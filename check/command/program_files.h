// SPDX-License-Identifier: MIT
// Programs on the disk: those of a folder, and the bytes of one with the text beside it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace torvik::check {

// The path itself for a file. For a folder its programs and those of the folders in it, by name:
// all files that are named like one or begin like one. Raises FileError for what cannot be read,
// and for a folder without a program.
std::vector<std::filesystem::path> programsOf(const std::filesystem::path& path);

struct ProgramBytes {
    std::string program;
    std::string sideText; // empty where there is none
};

// Raises FileError where the program, or the text beside it, cannot be read.
ProgramBytes readProgramFile(const std::filesystem::path& path);

} // namespace torvik::check
