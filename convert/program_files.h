// SPDX-License-Identifier: MIT
// A program and the text file beside it, written together or not at all, and what they may
// take the place of.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>

namespace torvik {

struct Dialect;
struct Job;
struct ToolList;
class Logger;

enum class Overwriting : std::uint8_t {
    nothing,
    programNamed, // the program's file was named, so it may be replaced, with the text beside it
    everything,
};

// Sees a program that is written before it takes its name, with the text beside it, which is empty
// where the target has none. What it raises leaves the files as they were.
using ProgramCheck = std::function<void(std::string_view program, std::string_view sideText)>;

// Raises FileError where a file exists that may not be overwritten, or cannot be written. False
// where the job cannot be written as it stands; the logger has been told why. In both cases no
// file of this name has changed.
bool writeProgramFiles(const Job& job, const ToolList& tools, const Dialect& dialect,
                       std::int16_t number, const std::filesystem::path& program,
                       Overwriting overwriting, Logger& logger, const ProgramCheck& check = {});

} // namespace torvik
