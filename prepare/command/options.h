// SPDX-License-Identifier: MIT
// The command line of torvik-prepare.
#pragma once

#include "commands/program_guide.h"
#include "prepare/prepare.h"

#include <QString>
#include <QStringList>

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace torvik {

struct PrepareCommand {
    enum class Action { prepare, help, version };

    Action action = Action::prepare;
    std::vector<std::filesystem::path> drawings;
    std::optional<std::filesystem::path> output;
    std::optional<std::filesystem::path> outputFolder;
    PrepareOptions options;
    SourceOptions source;
    bool report = false;
    bool force = false;
    bool quiet = false;
    bool sync = false;

    // Where drawing i (from 0) goes when it is prepared.
    std::filesystem::path outputPath(std::size_t i) const;
};

// Reads the arguments, the program's name first. Where they are wrong, `usageError` says in one
// line why, and the result is empty.
std::optional<PrepareCommand> parsePrepareCommand(const QStringList& arguments,
                                                  QString& usageError);

// What --help says.
ProgramGuide preparerGuide();

} // namespace torvik
