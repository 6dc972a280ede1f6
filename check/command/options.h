// SPDX-License-Identifier: MIT
// The command line of torvik-check.
#pragma once

#include "check/targets.h"
#include "commands/program_guide.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace torvik::check {

struct CheckOptions {
    enum class Action { check, help, version };
    enum class Form { text, table, json };

    Action action = Action::check;
    Form form = Form::text;
    std::vector<std::filesystem::path> files; // programs, and folders of them
    const Target* target = nullptr;           // nullptr: each program tells its own
    bool quiet = false;
    // What the programs are made from, where that is named.
    std::optional<std::filesystem::path> drawing;
    std::optional<std::filesystem::path> answers; // default: those saved for the drawing
    std::optional<std::filesystem::path> tools;   // default: the workshop's own list
};

// Reads the arguments (UTF-8), the program's name first. Where they are wrong, `usageError` says in
// one line why, and the result is empty.
std::optional<CheckOptions> parseOptions(std::vector<std::string> arguments,
                                         std::string& usageError);

// What --help says.
ProgramGuide checkerGuide();

} // namespace torvik::check
