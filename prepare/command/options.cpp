// SPDX-License-Identifier: MIT
#include "prepare/command/options.h"

#include "base/files.h"
#include "job/records.h"

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
        m_parser.setApplicationDescription(QStringLiteral(
            "Makes drawings of other programs (HPGL in all its forms, SVG) into drawings that "
            "Torvik\nreads completely, and says what it did to them."));
        m_parser.addPositionalArgument(
            QStringLiteral("drawings"),
            QStringLiteral("Drawings to prepare (.plt, .hpgl, .hpg, .plo, .svg)."),
            QStringLiteral("DRAWING..."));
        m_parser.addOptions(m_options);
    }

    QString helpText() const { return m_parser.helpText(); }

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
        if (m_parser.isSet(m_help) || m_parser.isSet(m_version)) {
            command.action = m_parser.isSet(m_help) ? PrepareCommand::Action::help
                                                    : PrepareCommand::Action::version;
            return command;
        }
        for (const QString& name : m_parser.positionalArguments())
            command.drawings.push_back(toPath(name));
        readFlagsAndPaths(command);
        readNumbers(command.options);
        readPlacement(command.options);
        readPens(command);
        checkFiles(command);
        error = m_mistake;
        if (!error.isEmpty())
            return {};
        return command;
    }

private:
    // The first mistake is the one that is told.
    void mistake(const QString& text) {
        if (m_mistake.isEmpty())
            m_mistake = text;
    }

    bool isFlagWithValue(const QString& word) const {
        const QString name = word.section(u'=', 0, 0);
        return name != word &&
               std::any_of(m_options.begin(), m_options.end(), [&](const auto& option) {
                   return option.valueName().isEmpty() &&
                          option.names().contains(name.mid(name.startsWith(u"--") ? 2 : 1));
               });
    }

    void readFlagsAndPaths(PrepareCommand& command) {
        if (m_parser.isSet(m_output))
            command.output = toPath(m_parser.value(m_output));
        if (m_parser.isSet(m_outputFolder))
            command.outputFolder = toPath(m_parser.value(m_outputFolder));
        command.report = m_parser.isSet(m_report);
        command.force = m_parser.isSet(m_force);
        command.quiet = m_parser.isSet(m_quiet);
        command.options.arcs = !m_parser.isSet(m_noArcs);
        command.options.optimize = m_parser.isSet(m_optimize);
        command.options.dropDuplicates = m_parser.isSet(m_dropDuplicates);
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
        options.tolerance = numberOf(m_tolerance, 10).value_or(options.tolerance);
        options.roundTurn = numberOf(m_roundTurn, 90).value_or(options.roundTurn);
        options.scale = numberOf(m_scale, 10000).value_or(options.scale);
        options.dots = numberOf(m_dots, 1000);
    }

    void readPlacement(PrepareOptions& options) {
        if (m_parser.isSet(m_origin)) {
            const QStringList parts = m_parser.value(m_origin).split(u',');
            bool isX = false;
            bool isY = false;
            const double x = parts.value(0).toDouble(&isX);
            const double y = parts.value(1).toDouble(&isY);
            if (parts.size() != 2 || !isX || !isY || !std::isfinite(x) || !std::isfinite(y))
                mistake(QStringLiteral("--origin needs two numbers, as in --origin 0,0"));
            options.origin = Point{x, y};
        }
        if (m_parser.isSet(m_mirror)) {
            const QString axis = m_parser.value(m_mirror);
            if (axis != u"x" && axis != u"y")
                mistake(QStringLiteral("--mirror needs x (left and right) or y (up and down)"));
            options.mirror = axis == u"x" ? Mirror::leftRight : Mirror::upDown;
        }
        if (m_parser.isSet(m_rotate)) {
            options.rotation = m_parser.value(m_rotate).toInt();
            if (options.rotation != 90 && options.rotation != 180 && options.rotation != 270)
                mistake(QStringLiteral("--rotate needs 90, 180 or 270"));
        }
    }

    void readPens(PrepareCommand& command) {
        static const QRegularExpression colour(QStringLiteral("^#[0-9a-fA-F]{6}$"));
        for (const QString& value : m_parser.values(m_pen)) {
            const QString from = value.section(u'=', 0, 0);
            bool isPen = false;
            const int pen = value.section(u'=', 1).toInt(&isPen);
            const int number = from.toInt();
            const bool isColour = colour.match(from).hasMatch();
            if (!isPen || pen < 1 || pen > penCount || (!isColour && number < 1))
                mistake(QStringLiteral("\"%1\" is no pen mapping, as 9=1 or #ff8000=6 are; pens "
                                       "are 1 to 8")
                            .arg(value));
            else if (isColour)
                command.colours[from.toLower().toStdString()] = pen;
            else
                command.options.pens[number] = pen;
        }
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

    static QCommandLineOption option(const QStringList& names, const char* description,
                                     const char* value = "") {
        return {names, QString::fromUtf8(description), QString::fromUtf8(value)};
    }

    QCommandLineOption m_output =
        option({QStringLiteral("o"), QStringLiteral("output")},
               "Where to write; an existing file is replaced.", "OUT.plt");
    QCommandLineOption m_outputFolder = option({QStringLiteral("output-dir")},
                                               "Folder for NAME-torvik.plt of each drawing; "
                                               "otherwise beside the drawing.",
                                               "DIR");
    QCommandLineOption m_tolerance =
        option({QStringLiteral("tolerance")},
               "How far the drawing's own points and curves may move (0.01).", "MM");
    QCommandLineOption m_roundTurn =
        option({QStringLiteral("round-turn")},
               "The widest chord that may stand for a piece of a circle (24); an octagon has 45.",
               "DEGREES");
    QCommandLineOption m_noArcs =
        option({QStringLiteral("no-arcs")},
               "Chords stay chords and curves become lines; the drawing's own arcs stay.");
    QCommandLineOption m_optimize =
        option({QStringLiteral("optimize")}, "Order the strokes of each pen for a short way.");
    QCommandLineOption m_dropDuplicates =
        option({QStringLiteral("drop-duplicates")}, "Take out what the same pen has drawn before.");
    QCommandLineOption m_origin =
        option({QStringLiteral("origin")}, "Where the lower left corner comes to, in mm.", "X,Y");
    QCommandLineOption m_scale =
        option({QStringLiteral("scale")}, "Multiply all lengths, before all else.", "F");
    QCommandLineOption m_mirror =
        option({QStringLiteral("mirror")},
               "Swap left and right (x) or up and down (y); the lower left corner stays.", "x|y");
    QCommandLineOption m_rotate =
        option({QStringLiteral("rotate")}, "Turn counter-clockwise; the lower left corner stays.",
               "90|180|270");
    QCommandLineOption m_dots =
        option({QStringLiteral("dots")}, "Draw dots as circles of this diameter.", "MM");
    QCommandLineOption m_pen =
        option({QStringLiteral("pen")},
               "Draw pen A, or a colour of a picture (in quotes), by pen B. May be repeated.",
               "A=B|#rrggbb=B");
    QCommandLineOption m_report =
        option({QStringLiteral("report")}, "Print what was read, done and lost.");
    QCommandLineOption m_force = option({QStringLiteral("force")}, "Overwrite existing files.");
    QCommandLineOption m_quiet = option({QStringLiteral("quiet")}, "Print no progress.");
    QCommandLineOption m_help =
        option({QStringLiteral("h"), QStringLiteral("help")}, "Print this help.");
    QCommandLineOption m_version =
        option({QStringLiteral("v"), QStringLiteral("version")}, "Print the version.");

    const QList<QCommandLineOption> m_options{
        m_output, m_outputFolder, m_tolerance, m_roundTurn, m_noArcs, m_optimize, m_dropDuplicates,
        m_origin, m_scale,        m_mirror,    m_rotate,    m_dots,   m_pen,      m_report,
        m_force,  m_quiet,        m_help,      m_version};

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

QString prepareHelpText() {
    return PrepareParser().helpText();
}

} // namespace torvik
