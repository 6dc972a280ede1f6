// SPDX-License-Identifier: MIT
#include "prepare/command/options.h"

#include "base/files.h"
#include "job/records.h"
#include "prepare/beside/run_values.h"
#include "prepare/command/option_set.h"
#include "prepare/source/source_kinds.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>
#include <set>

namespace torvik {
namespace {

std::filesystem::path toPath(const QString& name) {
    return pathFromUtf8(name.toStdString());
}

class PrepareParser {
public:
    PrepareParser() {
        m_parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
        m_parser.addOptions(m_set.all);
    }

    std::vector<OptionRow> rows() const {
        std::vector<OptionRow> table;
        table.reserve(static_cast<std::size_t>(m_set.all.size()));
        for (const QCommandLineOption& option : m_set.all)
            table.push_back(rowOf(option));
        return table;
    }

    std::optional<PrepareCommand> parse(const QStringList& arguments, QString& error) {
        if (!m_parser.parse(arguments)) {
            error = m_parser.errorText();
            if (error.endsWith(u'.'))
                error.chop(1);
            for (const QString& word : arguments)
                if (isFlagWithValue(word))
                    error = QStringLiteral("the option %1 takes no value")
                                .arg(word.section(u'=', 0, 0));
            return {};
        }
        PrepareCommand command;
        if (m_parser.isSet(m_set.help) || m_parser.isSet(m_set.version)) {
            command.action = m_parser.isSet(m_set.help) ? PrepareCommand::Action::help
                                                        : PrepareCommand::Action::version;
            return command;
        }
        for (const QString& name : m_parser.positionalArguments())
            command.drawings.push_back(toPath(name));
        readFlagsAndPaths(command);
        readNumbers(command.options);
        command.source.roundTurn = command.options.roundTurn;
        readTexts(command.source);
        readSizes(command.source);
        readPlacement(command.options);
        readPens(command);
        readBeside(command.options.beside);
        checkFiles(command);
        error = m_mistake;
        if (!error.isEmpty())
            return {};
        return command;
    }

private:
    static OptionRow rowOf(const QCommandLineOption& option) {
        static const QRegularExpression list(QStringLiteral("^\\w+(\\|\\w+)+$"));
        const QString value = option.valueName();
        const bool hasLetter = option.names().size() > 1;
        OptionRow row{option.names().constLast().toStdString(),
                      hasLetter ? option.names().constFirst().at(0).unicode() : 256,
                      value.toStdString(), option.description().toStdString()};
        if (list.match(value).hasMatch())
            for (const QString& choice : value.split(u'|'))
                row.choices.push_back(choice.toStdString());
        return row;
    }

    // The first mistake is the one that is told.
    void mistake(const QString& text) {
        if (m_mistake.isEmpty())
            m_mistake = text;
    }

    bool isFlagWithValue(const QString& word) const {
        const QString name = word.section(u'=', 0, 0);
        return name != word &&
               std::any_of(m_set.all.begin(), m_set.all.end(), [&](const auto& option) {
                   return option.valueName().isEmpty() &&
                          option.names().contains(name.mid(name.startsWith(u"--") ? 2 : 1));
               });
    }

    void readFlagsAndPaths(PrepareCommand& command) {
        if (m_parser.isSet(m_set.output))
            command.output = toPath(m_parser.value(m_set.output));
        if (m_parser.isSet(m_set.outputFolder))
            command.outputFolder = toPath(m_parser.value(m_set.outputFolder));
        command.report = m_parser.isSet(m_set.report);
        command.force = m_parser.isSet(m_set.force);
        command.quiet = m_parser.isSet(m_set.quiet);
        command.sync = m_parser.isSet(m_set.sync);
        command.options.arcs = !m_parser.isSet(m_set.noArcs);
        command.options.optimize = m_parser.isSet(m_set.optimize);
        command.options.dropDuplicates = m_parser.isSet(m_set.dropDuplicates);
    }

    // A number above 0 and at most `most`.
    std::optional<double> numberOf(const QCommandLineOption& option, double most) {
        if (!m_parser.isSet(option))
            return {};
        bool isNumber = false;
        const double number = m_parser.value(option).toDouble(&isNumber);
        if (!isNumber || !(number > 0 && number <= most))
            mistake(QStringLiteral("--%1 needs a number above 0, at most %2")
                        .arg(option.names().constLast())
                        .arg(most));
        return number;
    }

    void readNumbers(PrepareOptions& options) {
        options.tolerance = numberOf(m_set.tolerance, 10).value_or(options.tolerance);
        options.roundTurn = numberOf(m_set.roundTurn, 90).value_or(options.roundTurn);
        options.scale = numberOf(m_set.scale, 10000).value_or(options.scale);
        options.dots = numberOf(m_set.dots, 1000);
    }

    void readPlacement(PrepareOptions& options) {
        if (m_parser.isSet(m_set.origin)) {
            const QStringList parts = m_parser.value(m_set.origin).split(u',');
            bool isX = false;
            bool isY = false;
            const double x = parts.value(0).toDouble(&isX);
            const double y = parts.value(1).toDouble(&isY);
            if (parts.size() != 2 || !isX || !isY || !std::isfinite(x) || !std::isfinite(y))
                mistake(QStringLiteral("--origin needs two numbers, as in --origin 0,0"));
            options.origin = Point{x, y};
        }
        if (m_parser.isSet(m_set.mirror)) {
            const QString axis = m_parser.value(m_set.mirror);
            if (axis != u"x" && axis != u"y")
                mistake(QStringLiteral("--mirror needs x (left and right) or y (up and down)"));
            options.mirror = axis == u"x" ? Mirror::leftRight : Mirror::upDown;
        }
        if (m_parser.isSet(m_set.rotate)) {
            options.rotation = m_parser.value(m_set.rotate).toInt();
            if (options.rotation != 90 && options.rotation != 180 && options.rotation != 270)
                mistake(QStringLiteral("--rotate needs 90, 180 or 270"));
        }
    }

    void readTexts(SourceOptions& source) {
        const QString strokes = QStringLiteral("stroke");
        const QString kind = m_parser.isSet(m_set.text) ? m_parser.value(m_set.text) : strokes;
        if (kind != strokes && kind != u"none")
            mistake(QStringLiteral("--text needs stroke or none"));
        source.texts = kind == strokes;
    }

    void readSizes(SourceOptions& source) {
        constexpr double mostPixels = 100'000;
        source.dpi = numberOf(m_set.dpi, mostPixels);
        if (!m_parser.isSet(m_set.units))
            return;
        source.units = lengthUnit(m_parser.value(m_set.units).toStdString());
        if (!source.units)
            mistake(QStringLiteral("--units needs mm, cm, m or inch"));
    }

    void readPens(PrepareCommand& command) {
        static const QRegularExpression colour(QStringLiteral("^#[0-9a-fA-F]{6}$"));
        static const QString layerMark = QStringLiteral("layer:");
        for (const QString& value : m_parser.values(m_set.pen)) {
            const QString from = value.section(u'=', 0, -2);
            bool isPen = false;
            const int pen = value.section(u'=', -1).toInt(&isPen);
            bool isNumber = false;
            const int number = from.toInt(&isNumber);
            const bool isColour = colour.match(from).hasMatch();
            const bool isLayer = from.startsWith(layerMark) && from != layerMark;
            if (!isPen || pen < 1 || pen > penCount ||
                (!isColour && !isLayer && (!isNumber || number < 0)))
                mistake(QStringLiteral("\"%1\" is no pen mapping, as 9=1, #ff8000=6 and "
                                       "layer:Holes=2 are; pens are 1 to 8")
                            .arg(value));
            else if (isColour)
                command.source.pens[from.toLower().toStdString()] = pen;
            else if (isLayer)
                command.source.pens[from.toStdString()] = pen;
            else
                command.options.pens[number] = pen;
        }
    }

    void readBeside(RunOptions& beside) {
        beside.insideFirst = m_parser.isSet(m_set.insideFirst);
        for (const QString& value : m_parser.values(m_set.run))
            if (!readRun(value.toStdString(), beside))
                mistake(QStringLiteral("\"%1\" is no way of a tool, as 1=outside:6, 2=inside:3 and "
                                       "3=pocket:6,40 are; pens are 1 to 8")
                            .arg(value));
        for (const QString& value : m_parser.values(m_set.tabs))
            if (!readTabs(value.toStdString(), beside))
                mistake(QStringLiteral("\"%1\" says no tabs, as 1=2:4:3 does: pen 2 gets the "
                                       "outlines of pen 1 with 4 gaps for tabs of 3 mm")
                            .arg(value));
    }

    void checkFiles(const PrepareCommand& command) {
        if (command.drawings.empty())
            mistake(QStringLiteral("no drawing is named"));
        if (command.output && command.output->empty())
            mistake(QStringLiteral("--output needs the name of a file"));
        if (command.outputFolder && command.outputFolder->empty())
            mistake(QStringLiteral("--output-dir needs the name of a folder"));
        for (const auto& drawing : command.drawings)
            if (drawing.empty())
                mistake(QStringLiteral("a drawing's name is empty"));
        if (command.output && command.outputFolder)
            mistake(QStringLiteral("--output and --output-dir exclude each other"));
        if (command.drawings.size() > 1 && command.output)
            mistake(QStringLiteral("--output takes one drawing only"));
        std::set<std::filesystem::path> names;
        for (std::size_t i = 0; i < command.drawings.size(); ++i) {
            const auto path = command.outputPath(i).lexically_normal();
            if (!names.insert(path).second)
                mistake(QStringLiteral("two drawings would be written to %1")
                            .arg(QString::fromStdString(utf8FromPath(path))));
        }
    }

    const OptionSet m_set;
    QCommandLineParser m_parser;
    QString m_mistake;
};

} // namespace

std::filesystem::path PrepareCommand::outputPath(std::size_t i) const {
    if (output)
        return *output;
    const auto beside = pathFromUtf8(preparedName(utf8FromPath(drawings[i])));
    return outputFolder ? *outputFolder / beside.filename() : beside;
}

std::optional<PrepareCommand> parsePrepareCommand(const QStringList& arguments,
                                                  QString& usageError) {
    return PrepareParser().parse(arguments, usageError);
}

ProgramGuide preparerGuide() {
    std::vector<std::string> kinds(plotterKinds.begin(), plotterKinds.end());
    kinds.insert(kinds.end(), pictureKinds.begin(), pictureKinds.end());
    return {
        .name = "torvik-prepare",
        .summary = "makes plain drawings out of those of other programs",
        .usages = {"DRAWING... [OPTIONS]"},
        .description =
            "Makes drawings of other programs (HPGL in all its forms, SVG, DXF) "
            "into drawings that Torvik reads completely, and says what it did to them. Each "
            "becomes NAME-torvik.plt beside it.",
        .options = PrepareParser().rows(),
        .exits = {{ExitCode::done, "done"},
                  {ExitCode::usage, "wrong usage"},
                  {ExitCode::file, "a file cannot be read or written"},
                  {ExitCode::job, "a drawing cannot be prepared"}},
        .kinds = kinds,
    };
}

} // namespace torvik
