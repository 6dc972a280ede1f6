// SPDX-License-Identifier: MIT
// What is to be said of a console program, once for its --help, its manual page and the shell's
// completion. All texts are plain; a line ends where the place for it does.
#pragma once

#include "commands/exit_codes.h"
#include "commands/option_table.h"

#include <string>
#include <vector>

namespace torvik {

struct GuideRow {
    std::string term;
    std::string meaning;
};

// A paragraph, and a list below it where there are rows.
struct GuideNote {
    std::string heading; // of the manual page
    std::string text;
    std::vector<GuideRow> rows = {};
};

struct ExitRow {
    ExitCode code;
    std::string meaning;
};

struct ProgramGuide {
    std::string name;
    std::string summary = {};             // "checks programs", for lists of programs
    std::vector<std::string> usages = {}; // what may stand behind the name
    std::string description = {};
    std::vector<OptionRow> options = {};
    std::vector<GuideNote> notes = {};
    std::vector<ExitRow> exits = {};
    std::vector<std::string> kinds =
        {}; // endings of the files that it takes, without dot; empty: any
};

// The text of --help, in lines of at most 86 letters.
std::string helpText(const ProgramGuide& guide);

} // namespace torvik
