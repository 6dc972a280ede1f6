// SPDX-License-Identifier: MIT
// The options of torvik-prepare with what --help says of them, in its order.
#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

namespace torvik {

struct OptionSet {
    static QCommandLineOption option(const QStringList& names, const char* description,
                                     const char* value = "") {
        return {names, QString::fromUtf8(description), QString::fromUtf8(value)};
    }

    QCommandLineOption output = option({QStringLiteral("o"), QStringLiteral("output")},
                                       "Where to write; an existing file is replaced.", "OUT.plt");
    QCommandLineOption outputFolder = option({QStringLiteral("output-dir")},
                                             "Folder for NAME-torvik.plt of each drawing; "
                                             "otherwise beside the drawing.",
                                             "DIR");
    QCommandLineOption tolerance =
        option({QStringLiteral("tolerance")},
               "How far the drawing's own points and curves may move (0.01).", "MM");
    QCommandLineOption roundTurn =
        option({QStringLiteral("round-turn")},
               "The widest chord that may stand for a piece of a circle (24); an octagon has 45.",
               "DEGREES");
    QCommandLineOption noArcs =
        option({QStringLiteral("no-arcs")},
               "Chords stay chords and curves become lines; the drawing's own arcs stay.");
    QCommandLineOption optimize =
        option({QStringLiteral("optimize")}, "Order the strokes of each pen for a short way.");
    QCommandLineOption dropDuplicates =
        option({QStringLiteral("drop-duplicates")}, "Take out what the same pen has drawn before.");
    QCommandLineOption origin =
        option({QStringLiteral("origin")}, "Where the lower left corner comes to, in mm.", "X,Y");
    QCommandLineOption scale =
        option({QStringLiteral("scale")}, "Multiply all lengths, before all else.", "F");
    QCommandLineOption mirror =
        option({QStringLiteral("mirror")},
               "Swap left and right (x) or up and down (y); the lower left corner stays.", "x|y");
    QCommandLineOption rotate =
        option({QStringLiteral("rotate")}, "Turn counter-clockwise; the lower left corner stays.",
               "90|180|270");
    QCommandLineOption dots =
        option({QStringLiteral("dots")}, "Draw dots as circles of this diameter.", "MM");
    QCommandLineOption pen = option(
        {QStringLiteral("pen")},
        "Draw pen A, a colour of a picture (in quotes) or a layer of a CAD drawing by pen B. "
        "May be repeated.",
        "A=B|#rrggbb=B|layer:NAME=B");
    QCommandLineOption dpi =
        option({QStringLiteral("dpi")},
               "How many pixels of an SVG picture make an inch, whatever the picture says.", "N");
    QCommandLineOption units =
        option({QStringLiteral("units")},
               "The unit of a CAD drawing (DXF), whatever the drawing says.", "mm|cm|m|inch");
    QCommandLineOption text =
        option({QStringLiteral("text")},
               "Draw texts with single strokes (stroke), or leave them out (none).", "stroke|none");
    QCommandLineOption run =
        option({QStringLiteral("run")},
               "Run the tool of a pen outside or inside its outlines, by half its diameter in mm, "
               "or clear what they enclose, in rounds STEP percent of it apart. May be repeated.",
               "PEN=outside:MM|inside:MM|pocket:MM[,STEP]");
    QCommandLineOption tabs =
        option({QStringLiteral("tabs")},
               "Draw the outlines of pen A by pen B too, with COUNT gaps for tabs of LENGTH mm.",
               "A=B:COUNT:LENGTH");
    QCommandLineOption insideFirst = option({QStringLiteral("inside-first")},
                                            "Draw what lies inside an outline before the outline.");
    QCommandLineOption report =
        option({QStringLiteral("report")}, "Print what was read, done and lost.");
    QCommandLineOption force = option({QStringLiteral("force")}, "Overwrite existing files.");
    QCommandLineOption quiet = option({QStringLiteral("quiet")}, "Print no progress.");
    QCommandLineOption sync =
        option({QStringLiteral("sync")},
               "End only when the drawings and their names are safe on the disk, as for a stick "
               "that is taken out.");
    QCommandLineOption help =
        option({QStringLiteral("h"), QStringLiteral("help")}, "Print this help.");
    QCommandLineOption version =
        option({QStringLiteral("v"), QStringLiteral("version")}, "Print the version.");

    const QList<QCommandLineOption> all{
        output, outputFolder, tolerance, roundTurn, noArcs,      optimize, dropDuplicates,
        origin, scale,        mirror,    rotate,    dots,        pen,      dpi,
        units,  text,         run,       tabs,      insideFirst, report,   force,
        quiet,  sync,         help,      version};
};

} // namespace torvik
