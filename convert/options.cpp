// SPDX-License-Identifier: MIT
#include "convert/options.h"

#include "base/errors.h"
#include "base/files.h"
#include "gcode/output_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <getopt.h>
#include <limits>
#include <set>

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
    optionShow,
    optionHelp = 'h',
    optionVersion = 'v',
};

struct OptionRow {
    const char* name;
    OptionCode code;
    const char* value; // what stands for its value in the help, nullptr where it has none
    const char* help;  // lines at "\n"
};

constexpr std::array<OptionRow, 12> rows{{
    {"target", optionTarget, "NAME", "the control to write for: "},
    {"answers", optionAnswers, "FILE.plx",
     "the answers to use (default: those saved for the\ndrawing)"},
    {"tools", optionTools, "FILE.ini", "the tool library to use (default: the workshop's)"},
    {"number", optionNumber, "N",
     "the program number of the controls that need one,\n1 to 32767; with several drawings it "
     "counts up"},
    {"output", optionOutput, "FILE",
     "the file to write, for one drawing (default: beside\nthe drawing); overwritten if it exists"},
    {"output-dir", optionOutputFolder, "DIR", "the folder to write to"},
    {"date", optionDate, "TEXT", "the date of the header where the answers have none"},
    {"force", optionForce, nullptr, "overwrite files that exist"},
    {"quiet", optionQuiet, nullptr, "say nothing but what went wrong"},
    {"show", optionShow, nullptr, "print what the drawings hold instead of converting"},
    {"help", optionHelp, nullptr, "print this text"},
    {"version", optionVersion, nullptr, "print the version"},
}};

std::string targetNames() {
    std::string names;
    for (const Dialect& dialect : dialects())
        names.append(names.empty() ? "" : ", ").append(dialect.optionName);
    return names;
}

std::array<option, rows.size() + 1> longOptions() {
    std::array<option, rows.size() + 1> table{};
    for (std::size_t i = 0; i < rows.size(); ++i)
        table[i] = {rows[i].name, rows[i].value == nullptr ? no_argument : required_argument,
                    nullptr, rows[i].code};
    return table;
}

// Raised for a command line that is wrong; the text says why.
class UsageError : public RunTimeError {
public:
    using RunTimeError::RunTimeError;
};

// An empty name is what an unset variable of a script leaves: nothing that was meant.
std::filesystem::path namedPath(const char* value, const char* what) {
    if (*value == '\0')
        throw UsageError(std::string(what) + " is an empty name");
    return pathFromUtf8(value);
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
        throw UsageError("--target is missing (one of " + targetNames() + ")");
    options.dialect = dialectNamed(target);
    if (options.dialect == nullptr)
        throw UsageError("there is no target \"" + target + "\" (one of " + targetNames() + ")");
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

// The message for what getopt_long did not understand.
std::string unknownOption(const std::string& argument, int code) {
    if (code == ':')
        return "the option " + argument + " needs a value";
    if (std::any_of(rows.begin(), rows.end(),
                    [](const OptionRow& row) { return row.code == optopt; }))
        return "the option " + argument.substr(0, argument.find('=')) + " takes no value";
    return "there is no option " + argument;
}

ConvertOptions parse(std::vector<std::string>& arguments) {
    std::vector<char*> words;
    words.reserve(arguments.size() + 1);
    for (std::string& argument : arguments)
        words.push_back(argument.data());
    words.push_back(nullptr);

    const auto table = longOptions();
    ConvertOptions options;
    std::string target;
    std::string number;
    opterr = 0;
    optind = 0; // start afresh
    for (;;) {
        const auto at = static_cast<std::size_t>(optind == 0 ? 1 : optind);
        const int code = getopt_long(static_cast<int>(arguments.size()), words.data(), ":hv",
                                     table.data(), nullptr);
        if (code == -1)
            break;
        if (code == '?' || code == ':') {
            const auto last = static_cast<std::size_t>(optind) - 1;
            throw UsageError(unknownOption(words[std::max(at, last)], code));
        }
        take(options, target, number, code, optarg);
        if (options.action == ConvertOptions::Action::help ||
            options.action == ConvertOptions::Action::version)
            return options;
    }
    for (auto i = static_cast<std::size_t>(optind); i < arguments.size(); ++i)
        options.drawings.push_back(namedPath(words[i], "a drawing"));

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
    try {
        return parse(arguments);
    } catch (const UsageError& error) {
        usageError = error.what();
        return {};
    }
}

std::string helpText() {
    constexpr std::size_t column = 24;
    std::string text =
        "Usage: torvik-convert DRAWING.plt... --target NAME [OPTIONS]\n"
        "       torvik-convert --show DRAWING.plt...\n\n"
        "Converts pen-plotter drawings (HPGL) to programs for milling machines, with the\n"
        "answers saved for each drawing and the workshop's tools.\n\n";
    for (const OptionRow& row : rows) {
        std::string line = std::string("  --") + row.name;
        if (row.value != nullptr)
            line.append(" ").append(row.value);
        line.append(line.size() < column ? column - line.size() : 1, ' ');
        for (const char* at = row.help; *at != '\0'; ++at) {
            line += *at;
            if (*at == '\n')
                line.append(column, ' ');
        }
        if (row.code == optionTarget)
            line += targetNames();
        text += line + "\n";
    }
    return text + "\nExit codes: 0 done; 1 wrong usage; 2 a file cannot be read or written; 3 the\n"
                  "answers do not belong to the drawing; 4 the job cannot be written as it is.\n";
}

} // namespace torvik
