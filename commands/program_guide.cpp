// SPDX-License-Identifier: MIT
#include "commands/program_guide.h"

#include <algorithm>
#include <sstream>
#include <string_view>

namespace torvik {
namespace {

constexpr std::size_t width = 86;

// The words of a text, each line after the first set in by `indent`; the first one begins behind
// `column` letters.
std::string wrapped(const std::string& text, std::size_t indent = 0, std::size_t column = 0) {
    std::istringstream words(text);
    std::string lines;
    for (std::string word; words >> word;) {
        if (column > indent && column + 1 + word.size() > width) {
            lines.append("\n").append(indent, ' ');
            column = indent;
        } else if (column > indent) {
            lines += ' ';
            ++column;
        }
        lines += word;
        column += word.size();
    }
    return lines + "\n";
}

// "  TERM    MEANING", the meaning below the term where that is long.
std::string entry(const std::string& term, const std::string& meaning, std::size_t column) {
    std::string line = "  " + term;
    if (line.size() + 2 > column)
        line += "\n" + std::string(column, ' ');
    else
        line.append(column - line.size(), ' ');
    return line + wrapped(meaning, column, column);
}

std::string optionTerm(const OptionRow& row) {
    std::string term;
    if (row.letter() != '\0')
        term = std::string("-") + row.letter() + ", ";
    term += "--" + row.name;
    return row.value.empty() ? term : term + " " + row.value;
}

std::string note(const GuideNote& note) {
    constexpr std::size_t widestTerm = 40;
    std::size_t column = 0;
    for (const GuideRow& row : note.rows)
        if (row.term.size() <= widestTerm)
            column = std::max(column, row.term.size() + 4);
    std::string text = wrapped(note.text);
    for (const GuideRow& row : note.rows)
        text += entry(row.term, row.meaning, column);
    return text;
}

std::string exitCodes(const std::vector<ExitRow>& exits) {
    std::string text = "Exit codes:";
    const char* before = " ";
    for (const ExitRow& row : exits) {
        text += before + std::to_string(static_cast<int>(row.code)) + " " + row.meaning;
        before = "; ";
    }
    return wrapped(text + ".");
}

} // namespace

std::string helpText(const ProgramGuide& guide) {
    constexpr std::size_t optionColumn = 26;
    std::string text;
    for (const std::string& usage : guide.usages)
        text += (text.empty() ? "Usage: " : "       ") + guide.name + " " + usage + "\n";
    text += "\n" + wrapped(guide.description) + "\n";
    for (const OptionRow& row : guide.options)
        text += entry(optionTerm(row), row.help, optionColumn);
    for (const GuideNote& each : guide.notes)
        text += "\n" + note(each);
    return text + "\n" + exitCodes(guide.exits);
}

} // namespace torvik
