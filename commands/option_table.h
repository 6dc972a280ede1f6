// SPDX-License-Identifier: MIT
// The options of a console program as one table, which reads the command line and from which the
// help, the manual page and the shell's completion are made.
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
    std::string name;
    int code;          // its short letter, or 256 and above where it has none
    std::string value; // what stands for its value in the help, empty where it has none
    std::string help;
    std::vector<std::string> choices = {}; // all its values, where they can be counted

    // The short letter, '\0' where it has none.
    char letter() const { return code < 256 ? static_cast<char>(code) : '\0'; }
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

// The path of a name (UTF-8) on the command line. An empty name is what an unset variable of a
// script leaves, nothing that was meant: raises UsageError, which calls it `what`.
std::filesystem::path namedPath(const std::string& name, const char* what);

} // namespace torvik
