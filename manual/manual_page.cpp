// SPDX-License-Identifier: MIT
#include "manual/manual_page.h"

#include "manual/places.h"
#include "manual/roff.h"

#include <algorithm>
#include <cctype>

namespace torvik {
namespace {

std::string upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

std::string section(const std::string& heading) {
    return ".SH " + heading + "\n";
}

// A list's row: the term on a line of its own, what it means set in below.
std::string row(const std::string& term, const std::string& meaning) {
    return ".TP\n" + term + "\n" + roffText(meaning) + "\n";
}

std::string synopsis(const ProgramGuide& guide) {
    std::string text;
    for (const std::string& usage : guide.usages)
        text.append(text.empty() ? "" : ".br\n")
            .append(roffBold(guide.name) + " " + roffText(usage) + "\n");
    return text;
}

std::string optionTerm(const OptionRow& option) {
    std::string term;
    if (option.letter() != '\0')
        term = roffBold(std::string("-") + option.letter()) + ", ";
    term += roffBold("--" + option.name);
    return option.value.empty() ? term : term + " " + roffItalic(option.value);
}

std::string options(const ProgramGuide& guide) {
    std::string text;
    for (const OptionRow& option : guide.options)
        text += row(optionTerm(option), option.help);
    return text;
}

std::string rows(std::span<const GuideRow> rows) {
    std::string text;
    for (const GuideRow& each : rows)
        text += row(roffBold(each.term), each.meaning);
    return text;
}

std::string exitStatus(const ProgramGuide& guide) {
    std::string text;
    for (const ExitRow& exit : guide.exits)
        text += row(roffBold(std::to_string(static_cast<int>(exit.code))), exit.meaning);
    return text;
}

std::string seeAlso(const ProgramGuide& guide, std::span<const ProgramGuide> guides) {
    std::string text;
    for (const ProgramGuide& other : guides)
        if (other.name != guide.name)
            text.append(text.empty() ? "" : ",\n").append(roffBold(other.name) + "(1)");
    return text + "\n";
}

} // namespace

std::string manualPage(const ProgramGuide& guide, std::span<const ProgramGuide> guides,
                       std::string_view version) {
    std::string page = ".TH " + roffText(upper(guide.name));
    page.append(R"( 1 "" "Torvik )").append(version).append(R"(" "User Commands")").append("\n");
    page += section("NAME") + roffText(guide.name) + " \\- " + roffText(guide.summary) + "\n";
    page += section("SYNOPSIS") + synopsis(guide);
    page += section("DESCRIPTION") + roffText(guide.description) + "\n";
    page += section("OPTIONS") + options(guide);
    for (const GuideNote& note : guide.notes)
        page += section(note.heading) + roffText(note.text) + "\n" + rows(note.rows);
    page += section("EXIT STATUS") + exitStatus(guide);
    page += section("ENVIRONMENT") + rows(variables());
    page += section("FILES") + rows(places());
    return page + section("SEE ALSO") + seeAlso(guide, guides);
}

} // namespace torvik
