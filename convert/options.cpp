// SPDX-License-Identifier: MIT
#include "convert/options.h"

#include "base/files.h"
#include "gcode/output_file.h"

#include <QCommandLineParser>

#include <limits>
#include <set>

namespace torvik {
namespace {

QString targetNames() {
    QStringList names;
    for (const Dialect& dialect : dialects())
        names << QString::fromUtf8(dialect.optionName.data(),
                                   static_cast<qsizetype>(dialect.optionName.size()));
    return names.join(u", ");
}

std::filesystem::path toPath(const QString& name) {
    return pathFromUtf8(name.toStdString());
}

class ConvertParser {
public:
    ConvertParser() {
        m_parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
        m_parser.setApplicationDescription(
            QStringLiteral("Converts pen-plotter drawings (HPGL) to programs for milling machines, "
                           "with the\nanswers saved for each drawing and the workshop's tools."));
        m_parser.addPositionalArgument(QStringLiteral("drawings"),
                                       QStringLiteral("Drawings to convert (.plt)."),
                                       QStringLiteral("DRAWING.plt..."));
        m_parser.addOptions({m_target, m_answers, m_tools, m_number, m_output, m_outputFolder,
                             m_date, m_force, m_quiet, m_show, m_help, m_version});
    }

    QString helpText() const { return m_parser.helpText(); }

    std::optional<ConvertOptions> parse(const QStringList& arguments, QString& error) {
        if (!m_parser.parse(arguments)) {
            error = m_parser.errorText();
            return {};
        }
        ConvertOptions options;
        if (m_parser.isSet(m_help)) {
            options.action = ConvertOptions::Action::help;
            return options;
        }
        if (m_parser.isSet(m_version)) {
            options.action = ConvertOptions::Action::version;
            return options;
        }
        for (const QString& name : m_parser.positionalArguments())
            options.drawings.push_back(toPath(name));
        readFlagsAndPaths(options);
        error = firstMistake(options);
        if (!error.isEmpty())
            return {};
        return options;
    }

private:
    std::optional<std::filesystem::path> pathOf(const QCommandLineOption& option) const {
        if (!m_parser.isSet(option))
            return {};
        return toPath(m_parser.value(option));
    }

    void readFlagsAndPaths(ConvertOptions& options) const {
        if (m_parser.isSet(m_show))
            options.action = ConvertOptions::Action::show;
        options.answers = pathOf(m_answers);
        options.tools = pathOf(m_tools);
        options.output = pathOf(m_output);
        options.outputFolder = pathOf(m_outputFolder);
        options.date = m_parser.value(m_date).toStdString();
        options.force = m_parser.isSet(m_force);
        options.quiet = m_parser.isSet(m_quiet);
    }

    // What is wrong with the options, or an empty text; fills in target and number.
    QString firstMistake(ConvertOptions& options) const {
        if (options.drawings.empty())
            return QStringLiteral("no drawing is named");
        if (options.action == ConvertOptions::Action::show)
            return {};
        if (!m_parser.isSet(m_target))
            return QStringLiteral("--target is missing (one of %1)").arg(targetNames());
        options.dialect = dialectNamed(m_parser.value(m_target).toStdString());
        if (options.dialect == nullptr)
            return QStringLiteral("there is no target \"%1\" (one of %2)")
                .arg(m_parser.value(m_target), targetNames());
        if (QString mistake = numberMistake(options); !mistake.isEmpty())
            return mistake;
        if (options.output && options.outputFolder)
            return QStringLiteral("--output and --output-dir exclude each other");
        if (options.drawings.size() > 1 && (options.output || options.answers))
            return QStringLiteral("--output and --answers take one drawing only");
        return sameNameMistake(options);
    }

    QString numberMistake(ConvertOptions& options) const {
        if (!options.dialect->needsNumber())
            return {};
        if (!m_parser.isSet(m_number))
            return QStringLiteral("this target needs a program number: --number N");
        bool isNumber = false;
        const int number = m_parser.value(m_number).toInt(&isNumber);
        const int last = std::numeric_limits<std::int16_t>::max();
        const auto count = static_cast<long>(options.drawings.size());
        if (!isNumber || number < 1 || number > last)
            return QStringLiteral("the program number must be 1 to 32767");
        if (number + count - 1 > last)
            return QStringLiteral("the program numbers of %1 drawings from %2 pass 32767")
                .arg(count)
                .arg(number);
        options.number = static_cast<std::int16_t>(number);
        return {};
    }

    static QString sameNameMistake(const ConvertOptions& options) {
        std::set<std::filesystem::path> names;
        for (std::size_t i = 0; i < options.drawings.size(); ++i) {
            const auto path = options.outputPath(i).lexically_normal();
            if (!names.insert(path).second)
                return QStringLiteral("two drawings give the same output %1")
                    .arg(QString::fromStdString(utf8FromPath(path)));
        }
        return {};
    }

    const QCommandLineOption m_target{
        QStringLiteral("target"),
        QStringLiteral("The control to write for: %1.").arg(targetNames()), QStringLiteral("name")};
    const QCommandLineOption m_answers{
        QStringLiteral("answers"),
        QStringLiteral("Saved answers to use (default: those saved for the drawing)."),
        QStringLiteral("FILE.plx")};
    const QCommandLineOption m_tools{QStringLiteral("tools"),
                                     QStringLiteral("Tool library to use (default: the "
                                                    "workshop's)."),
                                     QStringLiteral("FILE.ini")};
    const QCommandLineOption m_number{
        QStringLiteral("number"),
        QStringLiteral("Program number for WinCAM and WinNC, 1 to 32767; counts up with several "
                       "drawings."),
        QStringLiteral("N")};
    const QCommandLineOption m_output{
        QStringLiteral("output"),
        QStringLiteral("The file to write, for one drawing (default: beside the drawing). It is "
                       "overwritten."),
        QStringLiteral("FILE")};
    const QCommandLineOption m_outputFolder{QStringLiteral("output-dir"),
                                            QStringLiteral("The folder to write to."),
                                            QStringLiteral("DIR")};
    const QCommandLineOption m_date{QStringLiteral("date"),
                                    QStringLiteral("The date of the header where the answers have "
                                                   "none."),
                                    QStringLiteral("TEXT")};
    const QCommandLineOption m_force{QStringLiteral("force"),
                                     QStringLiteral("Overwrite files that exist.")};
    const QCommandLineOption m_quiet{QStringLiteral("quiet"),
                                     QStringLiteral("Say nothing but what went wrong.")};
    const QCommandLineOption m_show{
        QStringLiteral("show"),
        QStringLiteral("Print what the drawings hold instead of converting them.")};
    const QCommandLineOption m_help{{QStringLiteral("h"), QStringLiteral("help")},
                                    QStringLiteral("Print this text.")};
    const QCommandLineOption m_version{{QStringLiteral("v"), QStringLiteral("version")},
                                       QStringLiteral("Print the version.")};
    QCommandLineParser m_parser;
};

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

std::optional<ConvertOptions> parseOptions(const QStringList& arguments, QString& usageError) {
    return ConvertParser().parse(arguments, usageError);
}

QString helpText() {
    return ConvertParser().helpText();
}

} // namespace torvik
