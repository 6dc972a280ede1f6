// SPDX-License-Identifier: MIT
#include "manual/bash_completion.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace torvik {
namespace {

std::string joined(const std::vector<std::string>& words, const char* between) {
    std::string text;
    for (const std::string& word : words)
        text.append(text.empty() ? "" : between).append(word);
    return text;
}

// Names of files with one of the endings and of folders; all files where there is no ending.
std::string files(const std::vector<std::string>& kinds) {
    return kinds.empty() ? "_filedir" : "_filedir '@(" + joined(kinds, "|") + ")'";
}

std::string words(const std::vector<std::string>& choices) {
    return "COMPREPLY=($(compgen -W '" + joined(choices, " ") + "' -- \"$cur\"))";
}

// What completes the option's value; empty where nobody can guess it.
std::string valueCommand(const OptionRow& option) {
    constexpr std::string_view anyFile = "FILE";
    if (!option.choices.empty())
        return words(option.choices);
    if (option.value == "DIR")
        return "_filedir -d";
    if (option.value == anyFile)
        return files({});
    const std::size_t dot = option.value.rfind('.');
    const bool namesKind =
        dot != std::string::npos &&
        std::all_of(option.value.begin() + static_cast<long>(dot) + 1, option.value.end(),
                    [](char c) { return c >= 'a' && c <= 'z'; });
    return namesKind ? files({option.value.substr(dot + 1)}) : std::string();
}

std::string valueCase(const OptionRow& option) {
    const std::string command = valueCommand(option);
    std::string pattern = "--" + option.name;
    if (option.letter() != '\0')
        pattern = std::string("-") + option.letter() + "|" + pattern;
    return "    " + pattern + ")\n" + (command.empty() ? "" : "      " + command + "\n") +
           "      return\n      ;;\n";
}

std::string valueCases(const std::vector<OptionRow>& options) {
    std::string text;
    for (const OptionRow& option : options)
        if (!option.value.empty())
            text += valueCase(option);
    return text;
}

std::vector<std::string> longNames(const std::vector<OptionRow>& options) {
    std::vector<std::string> names;
    names.reserve(options.size());
    for (const OptionRow& option : options)
        names.push_back("--" + option.name);
    return names;
}

} // namespace

std::string bashCompletion(const ProgramGuide& guide) {
    std::string function = "_" + guide.name;
    std::replace(function.begin(), function.end(), '-', '_');
    return function +
           "() {\n"
           "  local cur prev words cword split\n"
           "  _init_completion -s || return\n"
           "  case $prev in\n" +
           valueCases(guide.options) +
           "  esac\n"
           "  $split && return\n"
           "  if [[ $cur == -* ]]; then\n"
           "    " +
           words(longNames(guide.options)) +
           "\n"
           "  else\n"
           "    " +
           files(guide.kinds) +
           "\n"
           "  fi\n"
           "} &&\n"
           "  complete -F " +
           function + " " + guide.name + "\n";
}

} // namespace torvik
