// SPDX-License-Identifier: MIT
// The options of a console program as one table, which reads the command line and prints the help.
#pragma once

#include "base/errors.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace torvik {

struct OptionRow {
    const char* name;
    int code;          // its short letter, or 256 and above where it has none
    const char* value; // what stands for its value in the help, nullptr where it has none
    std::string help;  // lines at "\n"
};

// Raised for a command line that is wrong; the text says why.
class UsageError : public RunTimeError {
public:
    using RunTimeError::RunTimeError;
};

// Reads the arguments, the program's name first; calls take(code, value) for each option until it
// returns false. Returns the arguments that are no options. Raises UsageError for an option that is
// not in the table, and for one whose value is missing.
std::vector<std::string> readArguments(std::vector<std::string> arguments,
                                       std::span<const OptionRow> rows,
                                       const std::function<bool(int, const char*)>& take);

// What parse() makes of the command line; nothing where it raises UsageError, which then tells why.
template <typename Parse>
auto parsedOr(std::string& usageError, Parse parse) -> std::optional<decltype(parse())> {
    try {
        return parse();
    } catch (const UsageError& error) {
        usageError = error.what();
        return {};
    }
}

// The table as the help shows it.
std::string optionLines(std::span<const OptionRow> rows);

// The path of a name (UTF-8) on the command line. An empty name is what an unset variable of a
// script leaves, nothing that was meant: raises UsageError, which calls it `what`.
std::filesystem::path namedPath(const std::string& name, const char* what);

} // namespace torvik
