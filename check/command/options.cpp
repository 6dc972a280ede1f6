// SPDX-License-Identifier: MIT
#include "check/command/options.h"

#include "commands/target_names.h"

#include <utility>

namespace torvik::check {
namespace {

enum OptionCode : int {
    optionTarget = 256,
    optionDrawing,
    optionAnswers,
    optionTools,
    optionQuiet,
    optionTable,
    optionJson,
    optionHelp = 'h',
    optionVersion = 'v',
};

const std::vector<OptionRow>& rows() {
    static const std::vector<OptionRow> table{
        {"target", optionTarget, "NAME",
         "the control that the programs are for (default: each\nprogram's beginning tells it): " +
             targetNames(targets())},
        {"drawing", optionDrawing, "FILE.plt",
         "the drawing that the programs are made from: what they\ndo is held against what the job "
         "asks for"},
        {"answers", optionAnswers, "FILE.plx",
         "the answers for the drawing (default: those saved for\nit)"},
        {"tools", optionTools, "FILE.ini", "the tool library (default: the workshop's)"},
        {"quiet", optionQuiet, nullptr, "print what is dangerous or wrong, and nothing else"},
        {"table", optionTable, nullptr, "print one line for each program"},
        {"json", optionJson, nullptr, "print everything as JSON, for other programs"},
        {"help", optionHelp, nullptr, "print this text"},
        {"version", optionVersion, nullptr, "print the version"},
    };
    return table;
}

void setForm(CheckOptions& options, CheckOptions::Form form) {
    if (options.form != CheckOptions::Form::text && options.form != form)
        throw UsageError("--table and --json exclude each other");
    options.form = form;
}

void take(CheckOptions& options, int code, const char* value) {
    switch (code) {
    case optionTarget:
        options.target = &targetNamed(targets(), value);
        break;
    case optionDrawing:
        options.drawing = namedPath(value, "the value of --drawing");
        break;
    case optionAnswers:
        options.answers = namedPath(value, "the value of --answers");
        break;
    case optionTools:
        options.tools = namedPath(value, "the value of --tools");
        break;
    case optionQuiet:
        options.quiet = true;
        break;
    case optionTable:
        setForm(options, CheckOptions::Form::table);
        break;
    case optionJson:
        setForm(options, CheckOptions::Form::json);
        break;
    case optionHelp:
        options.action = CheckOptions::Action::help;
        break;
    case optionVersion:
        options.action = CheckOptions::Action::version;
        break;
    default:
        break;
    }
}

CheckOptions parse(std::vector<std::string> arguments) {
    CheckOptions options;
    const auto names =
        readArguments(std::move(arguments), rows(), [&](int code, const char* value) {
            take(options, code, value);
            return options.action == CheckOptions::Action::check;
        });
    for (const std::string& name : names)
        options.files.push_back(namedPath(name, "a program"));
    if (options.action == CheckOptions::Action::check && options.files.empty())
        throw UsageError("no program is named");
    if (!options.drawing && (options.answers || options.tools))
        throw UsageError("--answers and --tools go with --drawing");
    return options;
}

} // namespace

std::optional<CheckOptions> parseOptions(std::vector<std::string> arguments,
                                         std::string& usageError) {
    return parsedOr(usageError, [&] { return parse(std::move(arguments)); });
}

std::string helpText() {
    return "Usage: torvik-check FILE... [OPTIONS]\n\n"
           "Reads programs for milling machines and says what is dangerous or wrong in them.\n"
           "FILE is a program, or a folder whose programs are all read.\n\n" +
           optionLines(rows()) +
           "\nEach finding is one line, FILE:LINE: KIND: SENTENCE. Behind the findings of a\n"
           "program stands what it cuts, how deep, with which tools and how long, and the\n"
           "number of findings of each level:\n"
           "  danger  tool, work or machine can break\n"
           "  wrong   the machine will not do what was meant, or may refuse the program\n"
           "  look    may be meant: have a look\n"
           "  note    good to know\n\n"
           "Examples:\n"
           "  torvik-check gear.iso                   one program\n"
           "  torvik-check --table class-9b           a whole class, one line each\n"
           "  torvik-check gear.iso && cp gear.iso /media/stick\n"
           "  torvik-check gear.iso --drawing gear.plt\n"
           "                                          is it what the drawing and its answers ask "
           "for?\n\n"
           "The header of a diskette program is read from the text beside it, FILE.txt.\n"
           "With a drawing, every group, cut, hole, feed and speed is compared with the job, and\n"
           "nothing may be missing, doubled or added.\n"
           "The time is an estimate with acceleration, dwell, tool changes and spindle starts.\n\n"
           "Exit codes: 0 nothing dangerous or wrong was found; 1 wrong usage; 2 a file cannot be\n"
           "read, or the drawing and its answers make no job; 5 something dangerous or wrong was "
           "found.\n";
}

} // namespace torvik::check
