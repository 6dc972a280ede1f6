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
         "the control that the programs are for (default: each program's beginning tells it): " +
             targetNames(targets()),
         targetChoices(targets())},
        {"drawing", optionDrawing, "FILE.plt",
         "the drawing that the programs are made from: what they do is held against what the job "
         "asks for"},
        {"answers", optionAnswers, "FILE.plx",
         "the answers for the drawing (default: those saved for it)"},
        {"tools", optionTools, "FILE.ini", "the tool library (default: the workshop's)"},
        {"quiet", optionQuiet, "", "print what is dangerous or wrong, and nothing else"},
        {"table", optionTable, "", "print one line for each program"},
        {"json", optionJson, "", "print everything as JSON, for other programs"},
        {"help", optionHelp, "", "print this text"},
        {"version", optionVersion, "", "print the version"},
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

ProgramGuide checkerGuide() {
    return {
        .name = "torvik-check",
        .summary = "says what is dangerous or wrong in programs for milling machines",
        .usages = {"FILE... [OPTIONS]"},
        .description = "Reads programs for milling machines and says what is dangerous or wrong in "
                       "them. FILE is a program, or a folder whose programs are all read.",
        .options = rows(),
        .notes =
            {{"DIAGNOSTICS",
              "Each finding is one line, FILE:LINE: KIND: SENTENCE. Behind the findings of a "
              "program stands what it cuts, how deep, with which tools and how long, and the "
              "number of findings of each level:",
              {{"danger", "tool, work or machine can break"},
               {"wrong", "the machine will not do what was meant, or may refuse the program"},
               {"look", "may be meant: have a look"},
               {"note", "good to know"}}},
             {"EXAMPLES",
              "Examples:",
              {{"torvik-check gear.iso", "one program"},
               {"torvik-check --table class-9b", "a whole class, one line each"},
               {"torvik-check gear.iso && cp gear.iso /media/stick", "a copy of what is in order"},
               {"torvik-check gear.iso --drawing gear.plt",
                "is it what the drawing and its answers ask for?"}}},
             {"NOTES", "The header of a diskette program is read from the text beside it, "
                       "FILE.txt. With a drawing, every group, cut, hole, feed and speed is "
                       "compared with the job, and nothing may be missing, doubled or added. The "
                       "time is an estimate with acceleration, dwell, tool changes and spindle "
                       "starts."}},
        .exits = {{ExitCode::done, "nothing dangerous or wrong was found"},
                  {ExitCode::usage, "wrong usage"},
                  {ExitCode::file,
                   "a file cannot be read, or the drawing and its answers make no job"},
                  {ExitCode::findings, "something dangerous or wrong was found"}},
    };
}

} // namespace torvik::check
