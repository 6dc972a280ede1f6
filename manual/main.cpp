// SPDX-License-Identifier: MIT
// Writes the manual page (FOLDER/NAME.1) and the completion (FOLDER/NAME) of each console program.
// Part of the build; it is not handed on.
#include "base/errors.h"
#include "base/files.h"
#include "base/whole_file.h"
#include "check/command/options.h"
#include "convert/options.h"
#include "manual/bash_completion.h"
#include "manual/manual_page.h"
#include "prepare/command/options.h"
#include "sheet/command/sheet_command.h"

#include <array>
#include <iostream>

int main(int argc, char** argv) {
    using namespace torvik;
    if (argc != 2) {
        std::cerr << "Usage: torvik-manual FOLDER\n";
        return 1;
    }
    const auto folder = pathFromUtf8(argv[1]);
    const std::array guides{desktopGuide(), converterGuide(), preparerGuide(),
                            check::checkerGuide()};
    try {
        for (const ProgramGuide& guide : guides) {
            saveWhole(folder / (guide.name + ".1"), manualPage(guide, guides, TORVIK_VERSION));
            saveWhole(folder / guide.name, bashCompletion(guide));
        }
    } catch (const FileError& error) {
        std::cerr << "torvik-manual: " << error.what() << '\n';
        return 2;
    }
}
