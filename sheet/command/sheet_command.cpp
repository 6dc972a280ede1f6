// SPDX-License-Identifier: MIT
#include "sheet/command/sheet_command.h"

#include "base/files.h"
#include "base/whole_file.h"
#include "commands/job/job_reader.h"
#include "commands/overwriting.h"
#include "commands/program_run.h"
#include "commands/target_names.h"
#include "gcode/dialects.h"
#include "sheet/job_sheet.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <ostream>

namespace torvik {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view programName = "torvik";

enum OptionCode : int {
    optionSheet = 256,
    optionTarget,
    optionAnswers,
    optionTools,
    optionHelp = 'h',
    optionVersion = 'v',
};

struct SheetOptions {
    enum class Action : std::uint8_t { sheet, help, version };

    Action action = Action::sheet;
    fs::path output;
    fs::path drawing;
    const Dialect* dialect = nullptr;
    JobSources sources;
};

const std::vector<OptionRow>& rows() {
    static const std::vector<OptionRow> table{
        {"sheet", optionSheet, "OUT.pdf", "the job sheet that is made, one A4 page"},
        {"target", optionTarget, "NAME",
         "the control that the program is for: " + targetNames(dialects()),
         targetChoices(dialects())},
        {"answers", optionAnswers, "FILE.plx",
         "the answers for the drawing (default: those saved for it)"},
        {"tools", optionTools, "FILE.ini", "the tool library (default: the workshop's)"},
        {"help", optionHelp, "", "print this text"},
        {"version", optionVersion, "", "print the version"},
    };
    return table;
}

void take(SheetOptions& options, int code, const char* value) {
    switch (code) {
    case optionSheet:
        options.output = namedPath(value, "the value of --sheet");
        break;
    case optionTarget:
        options.dialect = &targetNamed(dialects(), value);
        break;
    case optionAnswers:
        options.sources.answers = namedPath(value, "the value of --answers");
        break;
    case optionTools:
        options.sources.tools = namedPath(value, "the value of --tools");
        break;
    case optionHelp:
        options.action = SheetOptions::Action::help;
        break;
    case optionVersion:
        options.action = SheetOptions::Action::version;
        break;
    default:
        break;
    }
}

SheetOptions parse(std::vector<std::string> arguments) {
    SheetOptions options;
    const auto usual = std::find_if(dialects().begin(), dialects().end(),
                                    [](const Dialect& dialect) { return dialect.isUsual; });
    options.dialect = usual == dialects().end() ? &dialects().front() : &*usual;
    const auto names =
        readArguments(std::move(arguments), rows(), [&](int code, const char* value) {
            take(options, code, value);
            return options.action == SheetOptions::Action::sheet;
        });
    if (options.action != SheetOptions::Action::sheet)
        return options;
    if (options.output.empty())
        throw UsageError("--sheet OUT.pdf is missing");
    if (names.size() != 1)
        throw UsageError(names.empty() ? "no drawing is named"
                                       : "a job sheet is made of one drawing only");
    options.drawing = namedPath(names.front(), "a drawing");
    return options;
}

// Another sheet may be replaced, and nothing else.
bool isPdf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::string start(5, '\0');
    file.read(start.data(), static_cast<std::streamsize>(start.size()));
    return start == "%PDF-";
}

void makeSheet(const SheetOptions& options, JobReader& reader) {
    const Job job = reader.readJob(options.drawing);
    const ToolList& tools = reader.tools();
    reader.requireTools(job, options.drawing);
    const std::string drawing = utf8FromPath(options.drawing);
    if (!isReadyForSheet(job, tools))
        throw Failure{ExitCode::job,
                      drawing + ": something that is milled has no answers yet, or nothing is "
                                "milled"};
    const JobSheet sheet(job, tools, *options.dialect, reader.logger());
    if (!sheet.failure().empty())
        throw Failure{ExitCode::job, drawing + ": " + sheet.failure()};
    requireFree(options.output, isPdf(options.output));
    const QByteArray pdf = sheet.pdf();
    saveWhole(options.output, {pdf.constData(), static_cast<std::size_t>(pdf.size())});
}

} // namespace

ProgramGuide desktopGuide() {
    return {
        .name = std::string(programName),
        .summary = "turns pen-plotter drawings into programs for milling machines",
        .usages = {"[DRAWING.plt]", "--sheet OUT.pdf DRAWING.plt [OPTIONS]"},
        .description = "Opens the window, or makes the job sheet of a drawing with the answers "
                       "saved for it. A window that is open already takes the drawing over.",
        .options = rows(),
        .notes = {{"NOTES", "A PDF file of the sheet's name is replaced, any other file is not."}},
        .exits = {{ExitCode::done, "done"},
                  {ExitCode::usage, "wrong usage"},
                  {ExitCode::file, "a file cannot be read or written"},
                  {ExitCode::digest, "the answers do not belong to the drawing"},
                  {ExitCode::job, "the job cannot be written as it is"}},
        .kinds = {"plt"},
    };
}

bool isSheetCommand(const std::vector<std::string>& arguments) {
    return std::any_of(arguments.begin() + 1, arguments.end(), [](const std::string& argument) {
        static constexpr std::array<std::string_view, 5> words{"-h", "--help", "-v", "--version",
                                                               "--sheet"};
        return std::find(words.begin(), words.end(), argument) != words.end() ||
               argument.starts_with("--sheet=");
    });
}

int runSheetCommand(std::vector<std::string> arguments, std::ostream& out, std::ostream& err) {
    std::string usageError;
    const auto options = parsedOr(usageError, [&] { return parse(std::move(arguments)); });
    const auto say = [&err](std::string_view message) {
        err << programName << ": " << message << '\n';
    };
    return runProgram({programName, out, err}, options, usageError, desktopGuide, [&] {
        JobReader reader(programName, options->sources, say);
        return runEach(
            {options->drawing},
            [&](std::size_t) {
                makeSheet(*options, reader);
                reader.sayWarnings(utf8FromPath(options->drawing) + ": ");
                out << utf8FromPath(options->drawing) << " -> " << utf8FromPath(options->output)
                    << std::endl;
            },
            say);
    });
}

} // namespace torvik
