// SPDX-License-Identifier: MIT
#include "commands/option_table.h"

#include "base/files.h"

#include <algorithm>
#include <getopt.h>

namespace torvik {
namespace {

std::vector<option> longOptions(std::span<const OptionRow> rows) {
    std::vector<option> table;
    for (const OptionRow& row : rows)
        table.push_back({row.name.c_str(), row.value.empty() ? no_argument : required_argument,
                         nullptr, row.code});
    table.push_back({});
    return table;
}

std::string letters(std::span<const OptionRow> rows) {
    std::string text = ":";
    for (const OptionRow& row : rows)
        if (row.letter() != '\0')
            text += row.letter();
    return text;
}

// The message for what getopt_long did not understand.
std::string unknownOption(std::span<const OptionRow> rows, const std::string& argument, int code) {
    if (code == ':')
        return "the option " + argument + " needs a value";
    if (std::any_of(rows.begin(), rows.end(),
                    [](const OptionRow& row) { return row.code == optopt; }))
        return "the option " + argument.substr(0, argument.find('=')) + " takes no value";
    return "there is no option " + argument;
}

} // namespace

std::vector<std::string> readArguments(std::vector<std::string> arguments,
                                       std::span<const OptionRow> rows,
                                       const std::function<bool(int, const char*)>& take) {
    std::vector<char*> words;
    words.reserve(arguments.size() + 1);
    for (std::string& argument : arguments)
        words.push_back(argument.data());
    words.push_back(nullptr);

    const auto table = longOptions(rows);
    const std::string shortOptions = letters(rows);
    opterr = 0;
    optind = 0; // start afresh
    for (;;) {
        const auto at = static_cast<std::size_t>(optind == 0 ? 1 : optind);
        const int code = getopt_long(static_cast<int>(arguments.size()), words.data(),
                                     shortOptions.c_str(), table.data(), nullptr);
        if (code == -1)
            break;
        if (code == '?' || code == ':') {
            const auto last = static_cast<std::size_t>(optind) - 1;
            throw UsageError(unknownOption(rows, words[std::max(at, last)], code));
        }
        if (!take(code, optarg))
            return {};
    }
    return {words.begin() + optind, words.end() - 1};
}

std::filesystem::path namedPath(const std::string& name, const char* what) {
    if (name.empty())
        throw UsageError(std::string(what) + " is an empty name");
    return pathFromUtf8(name);
}

} // namespace torvik
