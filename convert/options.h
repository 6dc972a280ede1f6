// SPDX-License-Identifier: MIT
// The command line of torvik-convert.
#pragma once

#include "commands/program_guide.h"
#include "gcode/dialects.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace torvik {

struct ConvertOptions {
    enum class Action { convert, show, help, version };

    Action action = Action::convert;
    std::vector<std::filesystem::path> drawings;
    const Dialect* dialect = nullptr; // set for Action::convert
    std::int16_t number = 0;          // of the first drawing, 0 where the target has none
    std::optional<std::filesystem::path> answers; // default: those saved for the drawing
    std::optional<std::filesystem::path> tools;   // default: the workshop's own list
    std::optional<std::filesystem::path> output;
    std::optional<std::filesystem::path> outputFolder;
    std::string date;
    bool force = false;
    bool quiet = false;
    bool strict = false;
    bool sync = false;

    // Where the program of drawing i goes (from 0).
    std::filesystem::path outputPath(std::size_t i) const;
    // Its program number.
    std::int16_t outputNumber(std::size_t i) const;
};

// Reads the arguments (UTF-8), the program's name first. Where they are wrong, `usageError` says in
// one line why, and the result is empty.
std::optional<ConvertOptions> parseOptions(std::vector<std::string> arguments,
                                           std::string& usageError);

// What --help says.
ProgramGuide converterGuide();

} // namespace torvik
