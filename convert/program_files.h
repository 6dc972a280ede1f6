// SPDX-License-Identifier: MIT
// A program and the text file beside it, written together or not at all, and what they may
// take the place of.
#pragma once

#include "base/byte_sink.h"

#include <cstdint>
#include <filesystem>
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

// Reads a program while it is written, and judges it before it takes its name.
class ProgramCheck : public ByteSink {
public:
    // The program is whole. `sideText` is the text beside it, empty where the target has none. What
    // it raises leaves the files as they were.
    virtual void judge(std::string_view sideText) = 0;
};

// Raises FileError where a file exists that may not be overwritten, or cannot be written. False
// where the job cannot be written as it stands; the logger has been told why. In both cases no
// file of this name has changed.
bool writeProgramFiles(const Job& job, const ToolList& tools, const Dialect& dialect,
                       std::int16_t number, const std::filesystem::path& program,
                       Overwriting overwriting, Logger& logger, ProgramCheck* check = nullptr);

} // namespace torvik
