// SPDX-License-Identifier: MIT
#include "convert/options.h"

#include "base/files.h"
#include "commands/target_names.h"
#include "gcode/output_file.h"

#include <charconv>
#include <limits>
#include <set>
#include <utility>
#include <vector>

namespace torvik {
namespace {

enum OptionCode : int {
    optionTarget = 256,
    optionAnswers,
    optionTools,
    optionNumber,
    optionOutput,
    optionOutputFolder,
    optionDate,
    optionForce,
    optionQuiet,
    optionStrict,
    optionSync,
    optionShow,
    optionHelp = 'h',
    optionVersion = 'v',
};

const std::vector<OptionRow>& rows() {
    static const std::vector<OptionRow> table{
        {"target", optionTarget, "NAME", "the control to write for: " + targetNames(dialects()),
         targetChoices(dialects())},
        {"answers", optionAnswers, "FILE.plx",
         "the answers to use (default: those saved for the drawing)"},
        {"tools", optionTools, "FILE.ini", "the tool library to use (default: the workshop's)"},
        {"number", optionNumber, "N",
         "the program number of the controls that need one, 1 to 32767; with several drawings it "
         "counts up"},
        {"output", optionOutput, "FILE",
         "the file to write, for one drawing (default: beside the drawing); overwritten if it "
         "exists"},
        {"output-dir", optionOutputFolder, "DIR", "the folder to write to"},
        {"date", optionDate, "TEXT", "the date of the header where the answers have none"},
        {"force", optionForce, "", "overwrite files that exist"},
        {"quiet", optionQuiet, "", "say nothing but what went wrong"},
        {"strict", optionStrict, "",
         "leave no program in which something dangerous or wrong is found"},
        {"sync", optionSync, "",
         "end only when the programs and their names are safe on the disk, as for a stick that is "
         "taken out"},
        {"show", optionShow, "", "print what the drawings hold instead of converting"},
        {"help", optionHelp, "", "print this text"},
        {"version", optionVersion, "", "print the version"},
    };
    return table;
}

void take(ConvertOptions& options, std::string& target, std::string& number, int code,
          const char* value) {
    switch (code) {
    case optionTarget:
        target = value;
        break;
    case optionNumber:
        number = value;
        break;
    case optionAnswers:
        options.answers = namedPath(value, "the value of --answers");
        break;
    case optionTools:
        options.tools = namedPath(value, "the value of --tools");
        break;
    case optionOutput:
        options.output = namedPath(value, "the value of --output");
        break;
    case optionOutputFolder:
        options.outputFolder = namedPath(value, "the value of --output-dir");
        break;
    case optionDate:
        options.date = value;
        break;
    case optionForce:
        options.force = true;
        break;
    case optionQuiet:
        options.quiet = true;
        break;
    case optionStrict:
        options.strict = true;
        break;
    case optionSync:
        options.sync = true;
        break;
    case optionShow:
        options.action = ConvertOptions::Action::show;
        break;
    case optionHelp:
        options.action = ConvertOptions::Action::help;
        break;
    case optionVersion:
        options.action = ConvertOptions::Action::version;
        break;
    default:
        break;
    }
}

void setTarget(ConvertOptions& options, const std::string& target) {
    if (target.empty())
        throw UsageError("--target is missing (one of " + targetNames(dialects()) + ")");
    options.dialect = &targetNamed(dialects(), target);
}

void setNumber(ConvertOptions& options, const std::string& text) {
    if (!options.dialect->needsNumber())
        return;
    if (text.empty())
        throw UsageError("this target needs a program number: --number N");
    constexpr long last = std::numeric_limits<std::int16_t>::max();
    long number = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
    if (end.ec != std::errc() || end.ptr != text.data() + text.size() || number < 1 ||
        number > last)
        throw UsageError("the program number must be 1 to 32767");
    if (number + static_cast<long>(options.drawings.size()) - 1 > last)
        throw UsageError("the program numbers of " + std::to_string(options.drawings.size()) +
                         " drawings from " + text + " pass 32767");
    options.number = static_cast<std::int16_t>(number);
}

void checkOutputs(const ConvertOptions& options) {
    if (options.output && options.outputFolder)
        throw UsageError("--output and --output-dir exclude each other");
    if (options.drawings.size() > 1 && (options.output || options.answers))
        throw UsageError("--output and --answers take one drawing only");
    std::set<std::filesystem::path> names;
    for (std::size_t i = 0; i < options.drawings.size(); ++i) {
        auto path = options.outputPath(i);
        std::error_code ignored; // without a current folder the names alone are compared
        if (const auto whole = std::filesystem::absolute(path, ignored); !ignored)
            path = whole.lexically_normal();
        if (!names.insert(path).second)
            throw UsageError("two drawings give the same output " + utf8FromPath(path));
    }
}

ConvertOptions parse(std::vector<std::string> arguments) {
    ConvertOptions options;
    std::string target;
    std::string number;
    const auto isRun = [&] {
        return options.action == ConvertOptions::Action::convert ||
               options.action == ConvertOptions::Action::show;
    };
    const auto names =
        readArguments(std::move(arguments), rows(), [&](int code, const char* value) {
            take(options, target, number, code, value);
            return isRun();
        });
    if (!isRun())
        return options;
    for (const std::string& name : names)
        options.drawings.push_back(namedPath(name, "a drawing"));

    if (options.drawings.empty())
        throw UsageError("no drawing is named");
    if (options.action == ConvertOptions::Action::convert) {
        setTarget(options, target);
        setNumber(options, number);
        checkOutputs(options);
    }
    return options;
}

} // namespace

std::filesystem::path ConvertOptions::outputPath(std::size_t i) const {
    if (output)
        return *output;
    const auto& drawing = drawings[i];
    const auto name =
        pathFromUtf8(proposedFileName(*dialect, utf8FromPath(drawing.filename()), outputNumber(i)));
    return (outputFolder ? *outputFolder : drawing.parent_path()) / name;
}

std::int16_t ConvertOptions::outputNumber(std::size_t i) const {
    return dialect->needsNumber() ? static_cast<std::int16_t>(number + static_cast<int>(i))
                                  : std::int16_t{0};
}

std::optional<ConvertOptions> parseOptions(std::vector<std::string> arguments,
                                           std::string& usageError) {
    return parsedOr(usageError, [&] { return parse(std::move(arguments)); });
}

ProgramGuide converterGuide() {
    return {
        .name = "torvik-convert",
        .summary = "converts pen-plotter drawings to programs for milling machines",
        .usages = {"DRAWING.plt... --target NAME [OPTIONS]", "--show DRAWING.plt..."},
        .description = "Converts pen-plotter drawings (HPGL) to programs for milling machines, "
                       "with the answers saved for each drawing and the workshop's tools.",
        .options = rows(),
        .notes = {{"DIAGNOSTICS",
                   "Each program is checked as by torvik-check; what is dangerous or wrong is "
                   "printed on the standard error as FILE:LINE: KIND: SENTENCE."}},
        .exits = {{ExitCode::done, "done"},
                  {ExitCode::usage, "wrong usage"},
                  {ExitCode::file, "a file cannot be read or written"},
                  {ExitCode::digest, "the answers do not belong to the drawing"},
                  {ExitCode::job, "the job cannot be written as it is"},
                  {ExitCode::findings,
                   "with --strict, something dangerous or wrong was found in the program"}},
        .kinds = {"plt"},
    };
}

} // namespace torvik
